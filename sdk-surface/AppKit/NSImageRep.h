// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <AppKit/AppKitDefines.h>
#import <Foundation/NSGeometry.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSImageRep : NSObject <NSCopying>
@property NSSize size;
@property NSInteger pixelsWide;
@property NSInteger pixelsHigh;
@end

NS_ASSUME_NONNULL_END
