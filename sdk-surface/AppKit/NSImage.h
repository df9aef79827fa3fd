// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <AppKit/AppKitDefines.h>
#import <Foundation/NSDictionary.h>
#import <Foundation/NSGeometry.h>
#import <Foundation/NSObject.h>

NS_ASSUME_NONNULL_BEGIN

@class NSGraphicsContext, NSImageRep, NSString;

typedef NSString* NSImageHintKey;

@interface NSImage : NSObject <NSCopying>
- (nullable instancetype)initWithContentsOfFile:(NSString*)fileName;
// The representation best suited to drawing into `rect` of `referenceContext` (the current
// context when nil).
- (nullable NSImageRep*)bestRepresentationForRect:(NSRect)rect
                                          context:(nullable NSGraphicsContext*)referenceContext
                                            hints:(nullable NSDictionary<NSImageHintKey, id>*)hints;
@end

NS_ASSUME_NONNULL_END
