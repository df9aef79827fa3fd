// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <AppKit/AppKitDefines.h>
#import <AppKit/NSFontDescriptor.h>
#import <AppKit/NSGraphics.h>
#import <Foundation/NSArray.h>
#import <Foundation/NSBundle.h>
#import <Foundation/NSDictionary.h>
#import <Foundation/NSGeometry.h>
#import <Foundation/NSString.h>

NS_ASSUME_NONNULL_BEGIN

@class NSColor;
@class NSImageRep;

typedef NSString* NSImageHintKey;
typedef NSString* NSImageName;

NS_ENUM(NSUInteger, NSImageScaling){
    NSImageScaleProportionallyDown = 0,
    NSImageScaleAxesIndependently = 1,
    NSImageScaleNone = 2,
    NSImageScaleProportionallyUpOrDown = 3,
};

// macOS 11.
@interface NSImageSymbolConfiguration : NSObject <NSCopying>
+ (instancetype)configurationWithPointSize:(CGFloat)pointSize weight:(NSFontWeight)weight;
// macOS 12: one colour per layer of the symbol, in the symbol's layer order.
+ (instancetype)configurationWithPaletteColors:(NSArray<NSColor*>*)paletteColors;
@end

@class NSGraphicsContext;

@interface NSImage : NSObject <NSCopying>
- (instancetype)initWithSize:(NSSize)size;
// macOS 10.8: the handler draws the image on demand, once per representation AppKit needs.
+ (NSImage*)imageWithSize:(NSSize)size
                  flipped:(BOOL)drawingHandlerShouldBeCalledWithFlippedContext
           drawingHandler:(BOOL (^)(NSRect dstRect))drawingHandler;
// A template's colour is ignored: only its alpha is used, tinted by where it is shown.
// Accessors only: `template` is a keyword in Objective-C++, so no property by that name.
- (void)setTemplate:(BOOL)isTemplate;
- (BOOL)isTemplate;
- (nullable instancetype)initWithContentsOfFile:(NSString*)fileName;
// The representation best suited to drawing into `rect` of `referenceContext` (the current
// context when nil).
- (nullable NSImageRep*)bestRepresentationForRect:(NSRect)rect
                                          context:(nullable NSGraphicsContext*)referenceContext
                                            hints:(nullable NSDictionary<NSImageHintKey, id>*)hints;
// macOS 11: nil when no symbol has that name.
+ (nullable instancetype)imageWithSystemSymbolName:(NSString*)name
                          accessibilityDescription:(nullable NSString*)description;
- (nullable NSImage*)imageWithSymbolConfiguration:(NSImageSymbolConfiguration*)configuration;
@property NSSize size;
- (void)addRepresentation:(NSImageRep*)imageRep;
- (void)drawInRect:(NSRect)dstSpacePortionRect
          fromRect:(NSRect)srcSpacePortionRect
         operation:(NSCompositingOperation)op
          fraction:(CGFloat)requestedAlpha
    respectFlipped:(BOOL)respectContextIsFlipped
             hints:(nullable NSDictionary<NSImageHintKey, id>*)hints;
@end

// macOS 10.7: the named image resource of the bundle (any image type, e.g. .pdf or .png with its
// @2x sibling), or nil; not cached by name, unlike +[NSImage imageNamed:].
@interface NSBundle (NSBundleImageExtension)
- (nullable NSImage*)imageForResource:(NSImageName)name;
@end

NS_ASSUME_NONNULL_END
