// Draws an application's icon into a bitmap that can cross to the main thread.
//
// Threading: runs on the icon queue, never the main thread. AppKit allows loading NSImages,
// asking the workspace for a file's icon and drawing into a bitmap graphics context off the main
// thread; the graphics context is made current for this thread only, and saved and restored
// around the drawing. Everything Objective-C is created and released inside the autorelease
// pool of one call.
//
// Guarantee: a returned icon is exactly kPixels × kPixels pixels of 8-bit RGBA, premultiplied,
// sRGB, top row first.

#include "shortcuts/running/macos/WorkspaceApplicationIconLoader.hpp"

#import "base/macos/FoundationPropertyList.h"

#import <AppKit/AppKit.h>
#include <cstddef>

namespace quenby {

namespace {

NSImage* _Nullable bundleIcon(const FileURL& bundleURL, const ApplicationIconFileLocator& locator) {
  if (const auto iconFile = locator.iconFileURL(bundleURL)) {
    if (NSString* path = foundationString(iconFile->path())) {
      if (NSImage* image = [[NSImage alloc] initWithContentsOfFile:path]) {
        return image;
      }
    }
  }
  NSString* bundlePath = foundationString(bundleURL.path());
  return bundlePath == nil ? nil : [NSWorkspace.sharedWorkspace iconForFile:bundlePath];
}

NSBitmapImageRep* _Nullable emptyBitmap() {
  NSBitmapImageRep* device =
      [[NSBitmapImageRep alloc] initWithBitmapDataPlanes:nullptr
                                              pixelsWide:WorkspaceApplicationIconLoader::kPixels
                                              pixelsHigh:WorkspaceApplicationIconLoader::kPixels
                                           bitsPerSample:8
                                         samplesPerPixel:4
                                                hasAlpha:YES
                                                isPlanar:NO
                                          colorSpaceName:NSDeviceRGBColorSpace
                                             bytesPerRow:0
                                            bitsPerPixel:32];
  // Tagged sRGB, so the bytes mean the same colours on every display the HUD appears on.
  return [device bitmapImageRepByRetaggingWithColorSpace:NSColorSpace.sRGBColorSpace];
}

} // namespace

std::optional<PreparedApplicationIcon>
WorkspaceApplicationIconLoader::loadIcon(const FileURL& bundleURL) const {
  @autoreleasepool {
    NSImage* image = bundleIcon(bundleURL, locator_);
    NSBitmapImageRep* bitmap = emptyBitmap();
    if (image == nil || bitmap == nil) {
      return std::nullopt;
    }
    const NSRect square = NSMakeRect(0, 0, kPixels, kPixels);
    NSImageRep* representation = [image bestRepresentationForRect:square context:nil hints:nil];
    NSGraphicsContext* context = [NSGraphicsContext graphicsContextWithBitmapImageRep:bitmap];
    if (representation == nil || context == nil) {
      return std::nullopt;
    }
    [NSGraphicsContext saveGraphicsState];
    NSGraphicsContext.currentContext = context;
    context.imageInterpolation = NSImageInterpolationHigh;
    const BOOL drawn = [representation drawInRect:square];
    [NSGraphicsContext restoreGraphicsState];
    const unsigned char* pixels = bitmap.bitmapData;
    if (drawn != YES || pixels == nullptr) {
      return std::nullopt;
    }
    const auto bytesPerRow = static_cast<std::size_t>(bitmap.bytesPerRow);
    return PreparedApplicationIcon{
        .encoding = PreparedApplicationIcon::Encoding::rgba8Premultiplied,
        .bitmapData = std::vector<std::uint8_t>(pixels, pixels + bytesPerRow * kPixels),
        .pixelsWide = kPixels,
        .pixelsHigh = kPixels,
        .bytesPerRow = static_cast<int>(bytesPerRow),
    };
  }
}

} // namespace quenby
