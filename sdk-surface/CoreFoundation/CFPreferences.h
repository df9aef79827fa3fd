// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#include <CoreFoundation/CFBase.h>

#pragma clang assume_nonnull begin
CF_EXTERN_C_BEGIN

// Copy rule: the value is owned by the caller. Searches the application's whole search list
// (forced values, current user, any user, …), as the application itself would.
CF_RETURNS_RETAINED
CFPropertyListRef _Nullable CFPreferencesCopyAppValue(CFStringRef key, CFStringRef applicationID);
// Writes pending changes and reads what other processes wrote since the last call.
Boolean CFPreferencesAppSynchronize(CFStringRef applicationID);

CF_EXTERN_C_END
#pragma clang assume_nonnull end
