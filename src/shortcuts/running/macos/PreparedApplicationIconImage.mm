// Any thread (AppKit's image objects may be made off the main thread; drawing stays on it).
// Copies the icon's bytes: the image owns its pixels and outlives the prepared icon.

#import "shortcuts/running/macos/PreparedApplicationIconImage.h"

#include <cstring>

namespace quenby {
namespace {

NSBitmapImageRep* _Nullable pixelRepresentation(const PreparedApplicationIcon& icon) {
  const auto rowBytes = static_cast<std::size_t>(icon.pixelsWide) * 4;
  if (icon.pixelsWide <= 0 || icon.pixelsHigh <= 0 ||
      static_cast<std::size_t>(icon.bytesPerRow) < rowBytes ||
      icon.bitmapData.size() <
          static_cast<std::size_t>(icon.bytesPerRow) * static_cast<std::size_t>(icon.pixelsHigh)) {
    return nil;
  }
  // No planes: the representation allocates its own buffer, which the rows are copied into.
  // Format 0 is what the icon holds: alpha last, premultiplied, 8 bits a sample.
  NSBitmapImageRep* representation =
      [[NSBitmapImageRep alloc] initWithBitmapDataPlanes:NULL
                                              pixelsWide:icon.pixelsWide
                                              pixelsHigh:icon.pixelsHigh
                                           bitsPerSample:8
                                         samplesPerPixel:4
                                                hasAlpha:YES
                                                isPlanar:NO
                                          colorSpaceName:NSDeviceRGBColorSpace
                                            bitmapFormat:0
                                             bytesPerRow:icon.bytesPerRow
                                            bitsPerPixel:32];
  unsigned char* pixels = representation.bitmapData;
  if (pixels == NULL) {
    return nil;
  }
  std::memcpy(pixels, icon.bitmapData.data(),
              static_cast<std::size_t>(icon.bytesPerRow) *
                  static_cast<std::size_t>(icon.pixelsHigh));
  return representation;
}

NSBitmapImageRep* _Nullable pngRepresentation(const PreparedApplicationIcon& icon) {
  if (icon.bitmapData.empty()) {
    return nil;
  }
  NSData* data = [NSData dataWithBytes:icon.bitmapData.data() length:icon.bitmapData.size()];
  return [NSBitmapImageRep imageRepWithData:data];
}

} // namespace

NSImage* _Nullable makePreparedApplicationIconImage(const PreparedApplicationIcon& icon) {
  NSBitmapImageRep* representation = icon.encoding == PreparedApplicationIcon::Encoding::png
                                         ? pngRepresentation(icon)
                                         : pixelRepresentation(icon);
  if (representation == nil) {
    return nil;
  }
  NSImage* image = [[NSImage alloc]
      initWithSize:NSMakeSize(representation.pixelsWide, representation.pixelsHigh)];
  [image addRepresentation:representation];
  return image;
}

} // namespace quenby
