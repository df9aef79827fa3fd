// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <AppKit/AppKitDefines.h>
#import <AppKit/NSText.h>

NS_ASSUME_NONNULL_BEGIN

NS_ENUM(NSUInteger, NSLineBreakMode){
    NSLineBreakByWordWrapping = 0,   NSLineBreakByCharWrapping = 1,
    NSLineBreakByClipping = 2,       NSLineBreakByTruncatingHead = 3,
    NSLineBreakByTruncatingTail = 4, NSLineBreakByTruncatingMiddle = 5,
};

@interface NSParagraphStyle : NSObject <NSCopying>
@property(readonly) NSTextAlignment alignment;
@property(readonly) NSLineBreakMode lineBreakMode;
@end

@interface NSMutableParagraphStyle : NSParagraphStyle
@property NSTextAlignment alignment;
@property NSLineBreakMode lineBreakMode;
@end

NS_ASSUME_NONNULL_END
