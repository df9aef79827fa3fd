// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <AppKit/NSControl.h>

NS_ASSUME_NONNULL_BEGIN

@class NSImage;

@interface NSImageView : NSControl
+ (instancetype)imageViewWithImage:(NSImage*)image;
@end

NS_ASSUME_NONNULL_END
