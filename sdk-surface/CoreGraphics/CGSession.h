// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#include <CoreFoundation/CoreFoundation.h>

CF_EXTERN_C_BEGIN

// The login session's attributes (+1; null when the caller has no window-server session).
CFDictionaryRef _Nullable CGSessionCopyCurrentDictionary(void);

CF_EXTERN_C_END
