// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <AppKit/AppKitDefines.h>
#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSColorSpace : NSObject
@property(class, strong, readonly) NSColorSpace* sRGBColorSpace;
@end

NS_ASSUME_NONNULL_END
