// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#include <CoreFoundation/CFBase.h>

#pragma clang assume_nonnull begin
CF_EXTERN_C_BEGIN

CFTypeID CFBooleanGetTypeID(void);

CF_EXTERN_C_END
#pragma clang assume_nonnull end
