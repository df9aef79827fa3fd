// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <AppKit/AppKitDefines.h>
#import <Foundation/NSGeometry.h>

NS_ASSUME_NONNULL_BEGIN

@class NSColor;

@interface NSShadow : NSObject <NSCopying>
- (instancetype)init;
// In the base coordinate space: positive heights go up whatever the view's flipping.
@property NSSize shadowOffset;
@property CGFloat shadowBlurRadius;
@property(nullable, copy) NSColor* shadowColor;
- (void)set;
@end

NS_ASSUME_NONNULL_END
