// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <AppKit/AppKitDefines.h>
#import <Foundation/NSGeometry.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSBezierPath : NSObject <NSCopying>
+ (NSBezierPath*)bezierPathWithOvalInRect:(NSRect)rect;
+ (NSBezierPath*)bezierPathWithRoundedRect:(NSRect)rect
                                   xRadius:(CGFloat)xRadius
                                   yRadius:(CGFloat)yRadius;
@property CGFloat lineWidth;
@property CGFloat miterLimit;
+ (void)fillRect:(NSRect)rect;
+ (void)strokeLineFromPoint:(NSPoint)point1 toPoint:(NSPoint)point2;
- (void)fill;
- (void)stroke;
@end

NS_ASSUME_NONNULL_END
