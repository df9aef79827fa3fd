// Declarations for syntax-checking the macOS layer without an Apple SDK, written from Apple's
// documentation. Not Apple's header: only what the .mm files use.
#pragma once

#import <AppKit/AppKitDefines.h>
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
// With `planes` NULL the representation allocates its own buffer, reachable through
// `bitmapData`.
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
+ (nullable instancetype)imageRepWithData:(NSData*)data;
@property(nullable, readonly) unsigned char* bitmapData NS_RETURNS_INNER_POINTER;
@end

NS_ASSUME_NONNULL_END
