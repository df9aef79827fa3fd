// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <AppKit/AppKitDefines.h>
#import <AppKit/NSView.h>

NS_ASSUME_NONNULL_BEGIN

@class NSFont, NSString;

@interface NSControl : NSView
@property(nullable, copy) NSFont* font;
@property(nullable, weak) id target;
@property(nullable) SEL action;
@property(getter=isEnabled) BOOL enabled;
@property NSInteger tag;
@property(copy) NSString* stringValue;
@end

NS_ASSUME_NONNULL_END
