// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <AppKit/AppKitDefines.h>
#import <Foundation/NSAttributedString.h>
#import <Foundation/NSDictionary.h>
#import <Foundation/NSGeometry.h>
#import <Foundation/NSString.h>

NS_ASSUME_NONNULL_BEGIN

@interface NSString (NSStringDrawing)
- (NSSize)sizeWithAttributes:(nullable NSDictionary<NSAttributedStringKey, id>*)attrs;
- (void)drawAtPoint:(NSPoint)point
     withAttributes:(nullable NSDictionary<NSAttributedStringKey, id>*)attrs;
- (void)drawInRect:(NSRect)rect
    withAttributes:(nullable NSDictionary<NSAttributedStringKey, id>*)attrs;
@end

NS_ASSUME_NONNULL_END
