// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#include <CoreFoundation/CFBase.h>
#include <CoreFoundation/CFDictionary.h>

CF_EXTERN_C_BEGIN

Boolean AXIsProcessTrusted(void);
// Shows the system's prompt when the options ask for it; answers the state before any grant.
Boolean AXIsProcessTrustedWithOptions(CFDictionaryRef _Nullable options);
// Declared without const.
extern CFStringRef _Nonnull kAXTrustedCheckOptionPrompt;

CF_EXTERN_C_END
