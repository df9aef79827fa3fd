#include "shortcuts/dock/DockTileSelection.hpp"

#include "support/DockItems.hpp"

#include <gtest/gtest.h>

namespace quenby {
namespace {

TEST(DockTileSelectionTest, URLValuesBecomeStandardisedFileURLs) {
  const PropertyListValue encoded("file:///Applications/Visual%20Studio%20Code.app/");
  EXPECT_EQ(dockFileURL(&encoded), FileURL::fromPath("/Applications/Visual Studio Code.app"));
  const PropertyListValue accented("file:///Applications/Caf%C3%A9%20N%C3%B6ir.app/");
  EXPECT_EQ(dockFileURL(&accented)->lastPathComponentWithoutExtension(), "Caf\u00e9 N\u00f6ir");
  const PropertyListValue plainPath("  /Applications/Utilities/../Safari.app/\n");
  EXPECT_EQ(dockFileURL(&plainPath), FileURL::fromPath("/Applications/Safari.app"));
  // A plain path is not percent-decoded: "%20" is part of the name there.
  const PropertyListValue literalPercent("/Applications/100%20.app");
  EXPECT_EQ(dockFileURL(&literalPercent)->path(), "/Applications/100%20.app");

  for (const PropertyListValue& rejected :
       {PropertyListValue("https://example.com/Safari.app"), PropertyListValue("Safari.app"),
        PropertyListValue("file:///broken%2"), PropertyListValue(" \t "),
        PropertyListValue(std::int64_t{15}), PropertyListValue(PropertyListValue::Data{0x2f})}) {
    EXPECT_FALSE(dockFileURL(&rejected).has_value());
  }
  EXPECT_FALSE(dockFileURL(nullptr).has_value());
}

TEST(DockTileSelectionTest, TextValuesAreTrimmedOfUnicodeWhitespace) {
  const PropertyListValue padded("\u00a0\u3000 Caf\u00e9 N\u00f6ir\u2028\r\n");
  EXPECT_EQ(dockText(&padded), "Caf\u00e9 N\u00f6ir");
  const PropertyListValue nextLines("\u0085Mail\u0085");
  EXPECT_EQ(dockText(&nextLines), "Mail");
  // Characters whose encoding merely resembles whitespace survive.
  const PropertyListValue lookalikes("\u00c2\u00a0x\u2027");
  EXPECT_EQ(dockText(&lookalikes), "\u00c2\u00a0x\u2027");
  for (const PropertyListValue& absent :
       {PropertyListValue(" \n\t\u00a0\u2003"), PropertyListValue(""), PropertyListValue(true)}) {
    EXPECT_FALSE(dockText(&absent).has_value());
  }
}

TEST(DockTileSelectionTest, ABlankLabelFallsBackToTheBundleName) {
  const auto item = DockItems::withTileData(
      DockItems::application("x", "com.example.cafe", "file:///Applications/Caf%C3%A9.app/"),
      "file-label", PropertyListValue(" \n "));
  const auto tiles = selectPinnedTiles({item});
  ASSERT_EQ(tiles.size(), 1u);
  EXPECT_EQ(tiles[0], (PinnedTile{std::nullopt, "com.example.cafe",
                                  FileURL::fromPath("/Applications/Caf\u00e9.app")}));

  // The identifier may sit in the file data instead, and keeps its case.
  const auto inFileData = DockItems::withTileData(
      DockItems::application("Mail", "", "file:///System/Applications/Mail.app/"), "file-data",
      PropertyListValue(
          PropertyListValue::Dictionary{{"_CFURLString", "/System/Applications/Mail.app"},
                                        {"bundle-identifier", "Com.Apple.Mail"}}));
  EXPECT_EQ(selectPinnedTiles({inFileData})[0].bundleIdentifier, "Com.Apple.Mail");
}

TEST(DockTileSelectionTest, FinderTrashAndRunningOnlyTilesTakeNoPosition) {
  const auto safari =
      DockItems::application("Safari", "com.apple.Safari", "file:///Applications/Safari.app/");
  const std::vector<PropertyListValue> skipped{
      // The Dock may write the flag as a real number.
      DockItems::withTileData(safari, "is-running-only", PropertyListValue(1.0)),
      DockItems::withKey(safari, "is-running-only", PropertyListValue(0.5)),
      DockItems::application("Trash", "com.apple.trash", "file:///Users/x/.Trash/"),
      DockItems::application("Finder", "", "file:///System/Library/CoreServices/Finder.app/"),
      DockItems::application("Trash", "", "file:///System/Library/CoreServices/Trash.app"),
  };
  for (const auto& item : skipped) {
    EXPECT_TRUE(selectPinnedTiles({item}).empty());
  }

  // A zero flag keeps the tile, and so does an identifier-less bundle named in capitals.
  const auto kept =
      selectPinnedTiles({DockItems::withTileData(safari, "is-running-only", PropertyListValue(0.0)),
                         DockItems::application("Legacy", "", "file:///Applications/LEGACY.APP/")});
  ASSERT_EQ(kept.size(), 2u);
  EXPECT_EQ(kept[0].bundleIdentifier, "com.apple.Safari");
  EXPECT_EQ(kept[1].url, FileURL::fromPath("/Applications/LEGACY.APP"));
}

} // namespace
} // namespace quenby
