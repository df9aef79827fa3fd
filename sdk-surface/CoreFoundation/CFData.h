// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#include <CoreFoundation/CFBase.h>

typedef const struct CF_BRIDGED_TYPE(NSData) __CFData* CFDataRef;

#pragma clang assume_nonnull begin
CF_EXTERN_C_BEGIN

// Valid while the data object lives.
const uint8_t* CFDataGetBytePtr(CFDataRef theData);

CF_EXTERN_C_END
#pragma clang assume_nonnull end
