// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#include <CoreFoundation/CoreFoundation.h>
#include <MacTypes.h>

#pragma clang assume_nonnull begin
CF_EXTERN_C_BEGIN

enum { errSecSuccess = 0 };

// A readable sentence for a Security status code; +1, nil for an unknown code. Pass NULL.
CFStringRef _Nullable SecCopyErrorMessageString(OSStatus status, void* _Nullable reserved);

CF_EXTERN_C_END
#pragma clang assume_nonnull end
