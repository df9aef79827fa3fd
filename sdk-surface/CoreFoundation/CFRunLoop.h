// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#include <CoreFoundation/CFBase.h>

#pragma clang assume_nonnull begin
CF_EXTERN_C_BEGIN

typedef struct CF_BRIDGED_TYPE(id) __CFRunLoop* CFRunLoopRef;
typedef struct CF_BRIDGED_TYPE(id) __CFRunLoopSource* CFRunLoopSourceRef;
typedef CFStringRef CFRunLoopMode;

// The pseudo-mode that stands for every mode marked common (the default mode, event tracking,
// modal panels).
CF_EXPORT const CFRunLoopMode kCFRunLoopCommonModes;
CF_EXPORT const CFRunLoopMode kCFRunLoopDefaultMode;

CFRunLoopRef CFRunLoopGetMain(void);
// The run loop retains the source until it is removed.
void CFRunLoopAddSource(CFRunLoopRef rl, CFRunLoopSourceRef source, CFRunLoopMode mode);
void CFRunLoopRemoveSource(CFRunLoopRef rl, CFRunLoopSourceRef source, CFRunLoopMode mode);
// `mode` is a mode name or an array of them; the block runs when the loop next runs in it.
void CFRunLoopPerformBlock(CFRunLoopRef rl, CFTypeRef mode, void (^block)(void));
void CFRunLoopWakeUp(CFRunLoopRef rl);

CF_EXTERN_C_END
#pragma clang assume_nonnull end
