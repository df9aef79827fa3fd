// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#include <CoreFoundation/CoreFoundation.h>
#include <MacTypes.h>

#pragma clang assume_nonnull begin
CF_EXTERN_C_BEGIN

typedef struct __TISInputSource* TISInputSourceRef;

// The layout's 'uchr' data (a CFDataRef owned by the input source); may be null.
CF_EXPORT const CFStringRef kTISPropertyUnicodeKeyLayoutData;
// Posted to the distributed notification centre when the user selects another keyboard input
// source.
CF_EXPORT const CFStringRef kTISNotifySelectedKeyboardInputSourceChanged;

// Create rule: release with CFRelease. Main thread only from macOS 11.
TISInputSourceRef _Nullable TISCopyCurrentKeyboardLayoutInputSource(void);
// The most recently used keyboard layout that can type ASCII: what the system falls back to where
// Latin input is required (+1).
TISInputSourceRef _Nullable TISCopyCurrentASCIICapableKeyboardLayoutInputSource(void);
// Get rule: the value belongs to the input source.
void* _Nullable TISGetInputSourceProperty(TISInputSourceRef inputSource, CFStringRef propertyKey);
// The hardware keyboard type, for UCKeyTranslate.
UInt8 LMGetKbdType(void);

CF_EXTERN_C_END
#pragma clang assume_nonnull end
