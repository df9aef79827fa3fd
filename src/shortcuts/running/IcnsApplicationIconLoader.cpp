#include "shortcuts/running/IcnsApplicationIconLoader.hpp"

#include <algorithm>
#include <array>
#include <cstddef>
#include <limits>

namespace quenby {
namespace {

// An icon file is a four-byte magic and a big-endian length (of the whole file), then entries of
// a four-byte type and a big-endian length that includes those eight bytes.
constexpr std::size_t kHeaderBytes = 8;
constexpr std::array<std::uint8_t, 4> kIcnsMagic{'i', 'c', 'n', 's'};

constexpr std::array<std::uint8_t, 8> kPNGSignature{0x89, 'P', 'N', 'G', '\r', '\n', 0x1a, '\n'};
constexpr std::array<std::uint8_t, 4> kHeaderChunkType{'I', 'H', 'D', 'R'};
constexpr std::uint32_t kHeaderChunkLength = 13;
// The signature, then the header chunk whole: length, type, its 13 bytes and the checksum.
constexpr std::size_t kMinimumPNGBytes = kPNGSignature.size() + 8 + kHeaderChunkLength + 4;

using Bytes = std::span<const std::uint8_t>;

// The caller makes sure that `offset + 4` lies within `bytes`.
std::uint32_t bigEndian32(Bytes bytes, std::size_t offset) {
  return static_cast<std::uint32_t>(bytes[offset]) << 24 |
         static_cast<std::uint32_t>(bytes[offset + 1]) << 16 |
         static_cast<std::uint32_t>(bytes[offset + 2]) << 8 |
         static_cast<std::uint32_t>(bytes[offset + 3]);
}

template <std::size_t N>
bool startsWith(Bytes bytes, std::size_t offset, const std::array<std::uint8_t, N>& expected) {
  return bytes.size() >= offset + N && std::ranges::equal(bytes.subspan(offset, N), expected);
}

struct PixelSize {
  int wide = 0;
  int high = 0;
};

// The image size from a PNG's header chunk, which the format requires to come first.
std::optional<PixelSize> pngPixelSize(Bytes data) {
  if (data.size() < kMinimumPNGBytes || !startsWith(data, 0, kPNGSignature) ||
      bigEndian32(data, 8) != kHeaderChunkLength || !startsWith(data, 12, kHeaderChunkType)) {
    return std::nullopt;
  }
  const std::uint32_t wide = bigEndian32(data, 16);
  const std::uint32_t high = bigEndian32(data, 20);
  constexpr auto kLargest = static_cast<std::uint32_t>(std::numeric_limits<int>::max());
  if (wide == 0 || high == 0 || wide > kLargest || high > kLargest) {
    return std::nullopt;
  }
  return PixelSize{static_cast<int>(wide), static_cast<int>(high)};
}

} // namespace

std::optional<PreparedApplicationIcon>
IcnsApplicationIconLoader::loadIcon(const FileURL& bundleURL) const {
  const auto iconFile = locator_.iconFileURL(bundleURL);
  if (!iconFile) {
    return std::nullopt;
  }
  const auto bytes = locator_.fileSystem().readFile(iconFile->path(), kMaximumIconFileBytes);
  if (!bytes) {
    return std::nullopt;
  }
  return largestPNGImage(*bytes);
}

std::optional<PreparedApplicationIcon>
IcnsApplicationIconLoader::largestPNGImage(std::span<const std::uint8_t> icnsBytes) {
  if (icnsBytes.size() < kHeaderBytes || !startsWith(icnsBytes, 0, kIcnsMagic)) {
    return std::nullopt;
  }
  // Bytes after the declared end are ignored; a file shorter than it declares is truncated.
  const std::uint32_t declaredLength = bigEndian32(icnsBytes, 4);
  if (declaredLength < kHeaderBytes || declaredLength > icnsBytes.size()) {
    return std::nullopt;
  }
  const Bytes container = icnsBytes.first(declaredLength);

  Bytes best;
  PixelSize bestSize;
  std::uint64_t bestPixels = 0;
  for (std::size_t offset = kHeaderBytes; offset < container.size();) {
    if (container.size() - offset < kHeaderBytes) {
      return std::nullopt;
    }
    const std::uint32_t entryLength = bigEndian32(container, offset + 4);
    if (entryLength < kHeaderBytes || entryLength > container.size() - offset) {
      return std::nullopt;
    }
    const Bytes data = container.subspan(offset + kHeaderBytes, entryLength - kHeaderBytes);
    if (const auto size = pngPixelSize(data)) {
      const auto pixels =
          static_cast<std::uint64_t>(size->wide) * static_cast<std::uint64_t>(size->high);
      if (pixels > bestPixels) {
        best = data;
        bestSize = *size;
        bestPixels = pixels;
      }
    }
    offset += entryLength;
  }
  if (bestPixels == 0) {
    return std::nullopt;
  }
  return PreparedApplicationIcon{
      .encoding = PreparedApplicationIcon::Encoding::png,
      .bitmapData = std::vector<std::uint8_t>(best.begin(), best.end()),
      .pixelsWide = bestSize.wide,
      .pixelsHigh = bestSize.high,
      .bytesPerRow = 0,
  };
}

} // namespace quenby
