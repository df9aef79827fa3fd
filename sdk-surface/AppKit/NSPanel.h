// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <AppKit/NSWindow.h>

@interface NSPanel : NSWindow
// The panel becomes key only when a view in it needs keyboard input.
@property BOOL becomesKeyOnlyIfNeeded;
@end
