// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#include <CoreFoundation/CFMachPort.h>
#include <CoreGraphics/CGEventTypes.h>
#include <stdbool.h>

#pragma clang assume_nonnull begin
CF_EXTERN_C_BEGIN

// +1, NULL when the system refuses (missing permission among other reasons).
CFMachPortRef _Nullable CGEventTapCreate(CGEventTapLocation tap, CGEventTapPlacement place,
                                         CGEventTapOptions options, CGEventMask eventsOfInterest,
                                         CGEventTapCallBack callback, void* _Nullable userInfo);
void CGEventTapEnable(CFMachPortRef tap, bool enable);
bool CGEventTapIsEnabled(CFMachPortRef tap);

int64_t CGEventGetIntegerValueField(CGEventRef _Nullable event, CGEventField field);
CGEventFlags CGEventGetFlags(CGEventRef _Nullable event);

// macOS 10.15. Neither prompts on preflight; the request may show the system's prompt.
bool CGPreflightListenEventAccess(void);
bool CGRequestListenEventAccess(void);

CF_EXTERN_C_END
#pragma clang assume_nonnull end
