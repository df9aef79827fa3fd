// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <AppKit/AppKitDefines.h>

NS_ASSUME_NONNULL_BEGIN

@class NSImage, NSString, NSViewController;

@interface NSTabViewItem : NSObject
// macOS 10.10.
+ (instancetype)tabViewItemWithViewController:(NSViewController*)viewController;
@property(copy) NSString* label;
@property(nullable, strong) NSImage* image;
@end

NS_ASSUME_NONNULL_END
