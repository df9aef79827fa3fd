#pragma once

#include <cstdint>
#include <vector>

namespace quenby {

/// An application's icon as finished bytes that can cross from the loading thread to the main
/// thread; only the macOS layer turns it into an image.
struct PreparedApplicationIcon {
  enum class Encoding : std::uint8_t {
    /// 8-bit RGBA in sRGB, alpha premultiplied, rows top to bottom, `bytesPerRow` apart.
    rgba8Premultiplied,
    /// A PNG file as found in an icon file; `bytesPerRow` is 0.
    png,
  };

  Encoding encoding = Encoding::rgba8Premultiplied;
  std::vector<std::uint8_t> bitmapData;
  int pixelsWide = 0;
  int pixelsHigh = 0;
  int bytesPerRow = 0;

  friend bool operator==(const PreparedApplicationIcon&, const PreparedApplicationIcon&) = default;
};

} // namespace quenby
