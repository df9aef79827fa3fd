// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#include <CoreFoundation/CFBase.h>
#include <CoreFoundation/CFRunLoop.h>

#pragma clang assume_nonnull begin
CF_EXTERN_C_BEGIN

typedef struct CF_BRIDGED_TYPE(NSMachPort) __CFMachPort* CFMachPortRef;

// +1: the caller releases it. NULL when the source cannot be made.
CFRunLoopSourceRef _Nullable CFMachPortCreateRunLoopSource(CFAllocatorRef _Nullable allocator,
                                                           CFMachPortRef port, CFIndex order);
// No callback arrives after this; the port is not released by it.
void CFMachPortInvalidate(CFMachPortRef port);

CF_EXTERN_C_END
#pragma clang assume_nonnull end
