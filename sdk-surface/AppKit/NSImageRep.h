// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <AppKit/AppKitDefines.h>
#import <Foundation/NSGeometry.h>
#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSImageRep : NSObject <NSCopying>
@property NSSize size;
@property NSInteger pixelsWide;
@property NSInteger pixelsHigh;
// Draws the whole representation scaled into `rect` of the current graphics context.
- (BOOL)drawInRect:(NSRect)rect;
@end

NS_ASSUME_NONNULL_END
