// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <CoreGraphics/CGGeometry.h>
#import <Foundation/NSObject.h>
#import <Foundation/NSString.h>

@class CAAnimation;

NS_ASSUME_NONNULL_BEGIN

@interface CALayer : NSObject
- (void)setNeedsDisplay;
- (void)displayIfNeeded;
// In the superlayer's coordinates; the point the anchor sits on.
@property CGPoint position;
// In unit coordinates of the bounds; transforms such as a scale happen around it.
@property CGPoint anchorPoint;
// Copies the animation; an animation under the same key is replaced.
- (void)addAnimation:(CAAnimation*)anim forKey:(nullable NSString*)key;
- (void)removeAnimationForKey:(NSString*)key;
@end

NS_ASSUME_NONNULL_END
