// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <AppKit/AppKitDefines.h>
#import <AppKit/NSButton.h>

NS_ASSUME_NONNULL_BEGIN

// macOS 10.10: the button a status item shows in the menu bar.
@interface NSStatusBarButton : NSButton
@end

NS_ASSUME_NONNULL_END
