// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <CoreFoundation/CFDate.h>
#import <Foundation/NSObject.h>
#import <Foundation/NSString.h>

NS_ASSUME_NONNULL_BEGIN

typedef NSString* CAMediaTimingFillMode;
// The animation keeps its final values once it has finished.
FOUNDATION_EXPORT CAMediaTimingFillMode const kCAFillModeForwards;

@protocol CAMediaTiming
// Relative to the parent's time: inside a group, from the group's start.
@property CFTimeInterval beginTime;
@property CFTimeInterval duration;
@property(copy) CAMediaTimingFillMode fillMode;
@end

NS_ASSUME_NONNULL_END
