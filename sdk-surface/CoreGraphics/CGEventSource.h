// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#include <CoreFoundation/CFBase.h>
#include <CoreGraphics/CGEventTypes.h>
#include <stdbool.h>

CF_EXTERN_C_BEGIN

bool CGEventSourceKeyState(CGEventSourceStateID stateID, CGKeyCode key);
// Events of that type the source state has seen since the system started (wraps at 2^32).
uint32_t CGEventSourceCounterForEventType(CGEventSourceStateID stateID, CGEventType eventType);

CF_EXTERN_C_END
