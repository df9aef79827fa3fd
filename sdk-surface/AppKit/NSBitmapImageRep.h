// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <AppKit/AppKitDefines.h>
#import <AppKit/NSColorSpace.h>
#import <AppKit/NSGraphics.h>
#import <AppKit/NSImageRep.h>
#import <Foundation/NSData.h>

NS_ASSUME_NONNULL_BEGIN

typedef NS_OPTIONS(NSUInteger, NSBitmapFormat) {
  NSBitmapFormatAlphaFirst = 1 << 0,
  NSBitmapFormatAlphaNonpremultiplied = 1 << 1,
  NSBitmapFormatFloatingPointSamples = 1 << 2,
};

@interface NSBitmapImageRep : NSImageRep
// With NULL planes the representation allocates (and owns) its own pixels; a bytesPerRow or
// bitsPerPixel of 0 lets it choose.
- (nullable instancetype)initWithBitmapDataPlanes:(unsigned char* _Nullable* _Nullable)planes
                                       pixelsWide:(NSInteger)width
                                       pixelsHigh:(NSInteger)height
                                    bitsPerSample:(NSInteger)bps
                                  samplesPerPixel:(NSInteger)spp
                                         hasAlpha:(BOOL)alpha
                                         isPlanar:(BOOL)isPlanar
                                   colorSpaceName:(NSColorSpaceName)colorSpaceName
                                     bitmapFormat:(NSBitmapFormat)bitmapFormat
                                      bytesPerRow:(NSInteger)rBytes
                                     bitsPerPixel:(NSInteger)pBits;
// The same without a format: premultiplied, alpha last.
- (nullable instancetype)initWithBitmapDataPlanes:(unsigned char* _Nullable* _Nullable)planes
                                       pixelsWide:(NSInteger)width
                                       pixelsHigh:(NSInteger)height
                                    bitsPerSample:(NSInteger)bps
                                  samplesPerPixel:(NSInteger)spp
                                         hasAlpha:(BOOL)alpha
                                         isPlanar:(BOOL)isPlanar
                                   colorSpaceName:(NSColorSpaceName)colorSpaceName
                                      bytesPerRow:(NSInteger)rBytes
                                     bitsPerPixel:(NSInteger)pBits;
+ (nullable instancetype)imageRepWithData:(NSData*)data;
@property(nullable, readonly) unsigned char* bitmapData NS_RETURNS_INNER_POINTER;
@property(readonly) NSInteger bytesPerRow;
// The same pixels reinterpreted in `newSpace` (no conversion); nil for an incompatible space.
- (nullable NSBitmapImageRep*)bitmapImageRepByRetaggingWithColorSpace:(NSColorSpace*)newSpace;
@end

NS_ASSUME_NONNULL_END
