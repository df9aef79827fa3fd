#include "shortcuts/running/IcnsApplicationIconLoader.hpp"

#include "base/PosixFileSystem.hpp"
#include "base/libplist/LibplistPropertyListDecoder.hpp"
#include "support/ApplicationBundleFixture.hpp"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

namespace quenby {
namespace {

using Bytes = std::vector<std::uint8_t>;

void putBigEndian32(Bytes& bytes, std::size_t offset, std::uint32_t value) {
  for (std::size_t i = 0; i < 4; ++i) {
    bytes[offset + i] = static_cast<std::uint8_t>(value >> (24 - 8 * i));
  }
}

// `head` (a four-character code or a signature), then a big-endian length, then `tail`.
Bytes record(std::string_view head, std::uint32_t length, const Bytes& tail) {
  Bytes out(head.begin(), head.end());
  out.resize(out.size() + 4);
  putBigEndian32(out, head.size(), length);
  out.insert(out.end(), tail.begin(), tail.end());
  return out;
}

// A PNG as far as the loader reads one: signature and header chunk, then `rest`.
Bytes png(std::uint32_t wide, std::uint32_t high, std::string_view rest = "IDAT") {
  Bytes header = record("IHDR", wide, {0, 0, 0, 0, 8, 6, 0, 0, 0, 0xde, 0xad, 0xbe, 0xef});
  putBigEndian32(header, 8, high);
  Bytes out = record("\x89PNG\r\n\x1a\n", 13, header);
  out.insert(out.end(), rest.begin(), rest.end());
  return out;
}

Bytes icns(const std::vector<std::pair<std::string_view, Bytes>>& entries) {
  Bytes body;
  for (const auto& [type, data] : entries) {
    const Bytes entry = record(type, static_cast<std::uint32_t>(data.size() + 8), data);
    body.insert(body.end(), entry.begin(), entry.end());
  }
  return record("icns", static_cast<std::uint32_t>(body.size() + 8), body);
}

std::optional<PreparedApplicationIcon> largest(const Bytes& bytes) {
  return IcnsApplicationIconLoader::largestPNGImage(bytes);
}

// A table of contents, raw pixels, JPEG 2000, a cut-off PNG and five PNGs.
const Bytes kIconFile = icns({
    {"TOC ", Bytes(24, 0)},
    {"is32", Bytes(700, 0x7f)},
    {"ic04", png(16, 16)},
    {"ic09", {0, 0, 0, 0x0c, 'j', 'P', ' ', ' ', 0x0d, 0x0a, 0x87, 0x0a}},
    {"ic05", png(1000, 60)},
    {"ic08", png(256, 256, "first")},
    {"ic12",
     [] {
       Bytes cut = png(4096, 4096);
       cut.resize(20);
       return cut;
     }()},
    {"ic13", png(256, 256, "second")},
});

TEST(IcnsImageSelection, TakesTheFirstOfTheLargestWholePNGs) {
  const auto icon = largest(kIconFile);
  ASSERT_TRUE(icon);
  EXPECT_EQ(icon->encoding, PreparedApplicationIcon::Encoding::png);
  EXPECT_EQ(icon->bitmapData, png(256, 256, "first"));
  EXPECT_EQ(icon->pixelsWide, 256);
  EXPECT_EQ(icon->pixelsHigh, 256);
  EXPECT_EQ(icon->bytesPerRow, 0);
}

TEST(IcnsImageSelection, RefusesAnythingButAWellFormedIconFileWithAPNG) {
  EXPECT_FALSE(largest(icns({{"is32", Bytes(64, 1)}, {"ic07", png(0, 128)}})));
  const auto broken = [](std::size_t offset, std::uint32_t value) {
    Bytes bytes = icns({{"ic07", png(128, 128)}, {"ic08", Bytes(8, 0)}});
    putBigEndian32(bytes, offset, value);
    return largest(bytes);
  };
  ASSERT_TRUE(broken(0, 0x69636e73)) << "the magic written again";
  EXPECT_FALSE(broken(0, 0x49636e73)) << "another magic";
  const auto size = static_cast<std::uint32_t>(icns({{"ic07", png(128, 128)}}).size() + 16);
  EXPECT_FALSE(broken(4, size + 1)) << "declares more than there is";
  EXPECT_FALSE(broken(4, 4)) << "declares less than its own header";
  EXPECT_FALSE(broken(size - 12, 0)) << "an entry that would never move the walk on";
  EXPECT_FALSE(broken(size - 12, 17)) << "an entry running past the end";

  Bytes trailing = kIconFile;
  trailing.insert(trailing.end(), 40, 0xff);
  EXPECT_TRUE(largest(trailing)) << "bytes after the declared end are not read";
}

TEST(IcnsImageSelection, EveryTruncationIsRefused) {
  for (std::size_t length = 0; length < kIconFile.size(); ++length) {
    EXPECT_FALSE(largest(Bytes(kIconFile.begin(), kIconFile.begin() + static_cast<long>(length))))
        << "cut at " << length;
  }
}

TEST(IcnsImageSelection, CorruptedFilesGiveNothingOrBytesOfTheFileItself) {
  std::mt19937 random(20260307);
  std::uniform_int_distribution<std::size_t> position(0, kIconFile.size() - 1);
  std::uniform_int_distribution<int> byte(0, 255);
  std::uniform_int_distribution<int> count(1, 8);
  for (int round = 0; round < 3000; ++round) {
    Bytes corrupted = kIconFile;
    for (int changes = count(random); changes > 0; --changes) {
      corrupted[position(random)] = static_cast<std::uint8_t>(byte(random));
    }
    if (const auto icon = largest(corrupted)) {
      ASSERT_GT(std::min(icon->pixelsWide, icon->pixelsHigh), 0);
      ASSERT_NE(std::search(corrupted.begin(), corrupted.end(), icon->bitmapData.begin(),
                            icon->bitmapData.end()),
                corrupted.end())
          << "round " << round;
    }
  }
}

TEST(IcnsApplicationIconLoader, FindsTheNamedIconFileInsideTheResourcesOnly) {
  ApplicationBundleFixture bundles;
  const IcnsApplicationIconLoader loader(std::make_shared<PosixFileSystem>(),
                                         std::make_shared<LibplistPropertyListDecoder>());
  const auto write = [&](std::string_view path, const Bytes& bytes) {
    bundles.writeFile(path, {reinterpret_cast<const char*>(bytes.data()), bytes.size()});
  };
  const auto widthNaming = [&](std::string_view iconFile) -> std::optional<int> {
    bundles.writeInfoPropertyList("Mail.app", PropertyListValue::Dictionary{
                                                  {"CFBundleIdentifier", "com.apple.mail"},
                                                  {"CFBundleIconFile", iconFile},
                                              });
    const auto icon = loader.loadIcon(bundles.url("Mail.app"));
    return icon ? std::optional(icon->pixelsWide) : std::nullopt;
  };
  write("Mail.app/Contents/Resources/AppIcon.icns", icns({{"ic07", png(128, 128)}}));
  write("Outside.icns", icns({{"ic07", png(128, 128)}}));
  write("Mail.app/Contents/Resources/Empty.icns", {});

  EXPECT_EQ(widthNaming("AppIcon"), 128) << "\".icns\" appended";
  EXPECT_EQ(widthNaming("AppIcon.icns"), 128);
  EXPECT_FALSE(widthNaming("../../../Outside"));
  EXPECT_FALSE(widthNaming("Missing"));
  EXPECT_FALSE(widthNaming(""));
  EXPECT_FALSE(widthNaming("Empty"));
  EXPECT_FALSE(loader.loadIcon(bundles.url("Nothing.app")));

  write("Mail.app/Contents/Resources/AppIcon", icns({{"ic06", png(64, 64)}}));
  EXPECT_EQ(widthNaming("AppIcon"), 64) << "the name as written comes first";
}

} // namespace
} // namespace quenby
