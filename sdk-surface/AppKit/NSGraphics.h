// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <AppKit/AppKitDefines.h>
#import <Foundation/NSString.h>

NS_ENUM(NSUInteger, NSBackingStoreType){
    NSBackingStoreRetained = 0,
    NSBackingStoreNonretained = 1,
    NSBackingStoreBuffered = 2,
};

@class NSString;

typedef NSString* NSColorSpaceName;
// Device-dependent RGB: the display's own colours, uncalibrated.
APPKIT_EXTERN NSColorSpaceName const NSDeviceRGBColorSpace;

NS_ENUM(NSUInteger, NSCompositingOperation){
    NSCompositingOperationClear = 0,
    NSCompositingOperationCopy = 1,
    NSCompositingOperationSourceOver = 2,
};
