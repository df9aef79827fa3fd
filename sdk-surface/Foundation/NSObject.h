// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <CoreFoundation/CFBase.h>
#import <Foundation/NSObjCRuntime.h>

NS_ASSUME_NONNULL_BEGIN

@protocol NSCopying
- (id)copyWithZone:(nullable NSZone*)zone;
@end

// Moves a +1 Core Foundation reference into ARC's care.
static inline id _Nullable CFBridgingRelease(CFTypeRef _Nullable CF_CONSUMED X) {
  return (__bridge_transfer id)X;
}

NS_ASSUME_NONNULL_END
