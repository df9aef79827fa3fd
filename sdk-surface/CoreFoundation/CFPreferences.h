// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#include <CoreFoundation/CFBase.h>

#pragma clang assume_nonnull begin
CF_EXTERN_C_BEGIN

CF_EXPORT const CFStringRef kCFPreferencesCurrentUser;
CF_EXPORT const CFStringRef kCFPreferencesAnyHost;

// Copy rule: the value is owned by the caller.
CF_RETURNS_RETAINED CFPropertyListRef _Nullable CFPreferencesCopyValue(CFStringRef key,
                                                                       CFStringRef applicationID,
                                                                       CFStringRef userName,
                                                                       CFStringRef hostName);
Boolean CFPreferencesSynchronize(CFStringRef applicationID, CFStringRef userName,
                                 CFStringRef hostName);

CF_EXTERN_C_END
#pragma clang assume_nonnull end
