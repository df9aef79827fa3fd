#include "shortcuts/catalog/BundleApplicationMetadataReader.hpp"

#include "base/PosixFileSystem.hpp"
#include "base/libplist/LibplistPropertyListDecoder.hpp"
#include "simulation/LibplistPropertyListEncoder.hpp"
#include "support/ApplicationBundleFixture.hpp"

#include <gtest/gtest.h>

namespace quenby {
namespace {

class BundleApplicationMetadataReaderTest : public ::testing::Test {
protected:
  std::optional<ApplicationMetadata> readWith(const PropertyListValue::Dictionary& info) {
    bundles.writeInfoPropertyList("Sample.app", info);
    return reader.readMetadata(bundles.url("Sample.app"));
  }

  ApplicationBundleFixture bundles;
  PosixFileSystem fileSystem;
  LibplistPropertyListDecoder decoder;
  BundleApplicationMetadataReader reader{fileSystem, decoder};
};

TEST_F(BundleApplicationMetadataReaderTest, ReadsIdentifierAndTheBestDisplayName) {
  EXPECT_EQ(readWith({{"CFBundleIdentifier", "com.example.sample"},
                      {"CFBundleDisplayName", "Shown"},
                      {"CFBundleName", "Named"}})
                ->displayName,
            "Shown");
  EXPECT_EQ(readWith({{"CFBundleIdentifier", "com.example.sample"},
                      {"CFBundleDisplayName", ""},
                      {"CFBundleName", "Named"}})
                ->displayName,
            "Named");
  const auto fallback = readWith({{"CFBundleIdentifier", "com.example.sample"}});
  ASSERT_TRUE(fallback.has_value());
  EXPECT_EQ(fallback->bundleIdentifier, "com.example.sample");
  EXPECT_EQ(fallback->displayName, "Sample");
  EXPECT_FALSE(fallback->catalogFingerprint.empty());

  // No identifier, an empty or a non-string one, an XML Info.plist that is damaged.
  EXPECT_FALSE(readWith({{"CFBundleName", "Named"}}).has_value());
  EXPECT_FALSE(readWith({{"CFBundleIdentifier", ""}}).has_value());
  EXPECT_FALSE(readWith({{"CFBundleIdentifier", 42}}).has_value());
  bundles.writeFile("Sample.app/Contents/Info.plist", "<plist><dict><key>CFBundleIdentifier");
  EXPECT_FALSE(reader.readMetadata(bundles.url("Sample.app")).has_value());
  // XML is read as well as binary.
  bundles.writeFile("Sample.app/Contents/Info.plist",
                    LibplistPropertyListEncoder::encodeXML(
                        PropertyListValue::Dictionary{{"CFBundleIdentifier", "com.example.xml"}}));
  EXPECT_EQ(reader.readMetadata(bundles.url("Sample.app"))->bundleIdentifier, "com.example.xml");

  // Only ".app" bundles are applications, whatever the case of the extension.
  for (const char* name : {"Upper.APP", "Mixed.App"}) {
    const auto found = reader.readMetadata(bundles.createBundle(name, "com.example.case", "Case"));
    ASSERT_TRUE(found.has_value()) << name;
    EXPECT_EQ(found->bundleIdentifier, "com.example.case");
  }
  bundles.createBundle("Plugin.bundle", "com.example.plugin", "Plugin");
  EXPECT_FALSE(reader.readMetadata(bundles.url("Plugin.bundle")).has_value());
  EXPECT_FALSE(reader.readMetadata(bundles.url("Missing.app")).has_value());
}

TEST_F(BundleApplicationMetadataReaderTest, WatchesTheNamedIconInsideTheResources) {
  const auto watchedPath = [&](const PropertyListValue& iconFile) -> std::string {
    bundles.writeInfoPropertyList(
        "Sample.app", PropertyListValue::Dictionary{{"CFBundleIdentifier", "com.example.sample"},
                                                    {"CFBundleIconFile", iconFile}});
    const auto snapshot = reader.readSnapshot(bundles.url("Sample.app"));
    EXPECT_TRUE(snapshot.metadata.has_value());
    const auto& items = snapshot.fingerprint.items;
    EXPECT_GE(items.size(), BundleApplicationMetadataReader::kBundleItemCount);
    return items.size() > BundleApplicationMetadataReader::kBundleItemCount ? items.back().path
                                                                            : "";
  };
  const std::string resources = bundles.url("Sample.app/Contents/Resources").path();
  EXPECT_EQ(watchedPath("Symbol"), resources + "/Symbol.icns");
  EXPECT_EQ(watchedPath("Symbol.icns"), resources + "/Symbol.icns");
  EXPECT_EQ(watchedPath("../../../Elsewhere.icns"), "");
  EXPECT_EQ(watchedPath("Assets.car"), "");
  EXPECT_EQ(watchedPath(7), "");

  // A fingerprint stays current until one of its files changes, and counts the icon.
  watchedPath("Symbol");
  const FileURL url = bundles.url("Sample.app");
  const auto fingerprint = reader.readSnapshot(url).fingerprint;
  EXPECT_TRUE(reader.isCurrent(url, fingerprint));
  EXPECT_FALSE(fingerprint.items.back().exists);
  bundles.writeFile("Sample.app/Contents/Resources/Symbol.icns", "icon");
  EXPECT_FALSE(reader.isCurrent(url, fingerprint));
  EXPECT_NE(reader.readSnapshot(url).fingerprint, fingerprint);
}

} // namespace
} // namespace quenby
