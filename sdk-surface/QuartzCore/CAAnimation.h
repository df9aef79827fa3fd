// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <Foundation/NSArray.h>
#import <Foundation/NSObject.h>
#import <Foundation/NSString.h>
#import <QuartzCore/CAMediaTiming.h>
#import <QuartzCore/CAMediaTimingFunction.h>

NS_ASSUME_NONNULL_BEGIN

@interface CAAnimation : NSObject <CAMediaTiming>
+ (instancetype)animation;
@property(nullable, strong) CAMediaTimingFunction* timingFunction;
// YES by default: the animation leaves the layer once it has finished.
@property(getter=isRemovedOnCompletion) BOOL removedOnCompletion;
@end

@interface CAPropertyAnimation : CAAnimation
+ (instancetype)animationWithKeyPath:(nullable NSString*)path;
@end

@interface CABasicAnimation : CAPropertyAnimation
@property(nullable, strong) id fromValue;
@property(nullable, strong) id toValue;
@end

@interface CAAnimationGroup : CAAnimation
@property(nullable, copy) NSArray<CAAnimation*>* animations;
@end

NS_ASSUME_NONNULL_END
