// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <AppKit/NSView.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSScrollView : NSView
@property BOOL hasVerticalScroller;
@property(nullable, strong) __kindof NSView* documentView;
@end

NS_ASSUME_NONNULL_END
