// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <AppKit/AppKitDefines.h>
#import <AppKit/NSControl.h>
#import <CoreGraphics/CGBase.h>

NS_ASSUME_NONNULL_BEGIN

@class NSColor, NSString;

@interface NSTextField : NSControl
// A multi-line label whose text can be selected, in the system font.
+ (instancetype)wrappingLabelWithString:(NSString*)stringValue;
// A single-line label that cannot be selected, in the system font.
+ (instancetype)labelWithString:(NSString*)stringValue;
@property(getter=isSelectable) BOOL selectable;
@property(nullable, copy) NSColor* textColor;
@property CGFloat preferredMaxLayoutWidth;
@end

NS_ASSUME_NONNULL_END
