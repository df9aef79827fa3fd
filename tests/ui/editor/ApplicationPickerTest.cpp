#include "ui/editor/ApplicationPicker.hpp"

#include "base/PosixFileSystem.hpp"
#include "base/libplist/LibplistPropertyListDecoder.hpp"
#include "support/ApplicationBundleFixture.hpp"

#include <gtest/gtest.h>

namespace quenby {
namespace {

std::vector<std::string> names(const std::vector<InstalledApplication>& applications) {
  std::vector<std::string> found;
  for (const auto& application : applications) {
    found.push_back(application.displayName + " " + application.url.lastPathComponent());
  }
  return found;
}

TEST(ApplicationPickerTest, ListsEachApplicationOnceByNameFromTheStandardFolders) {
  ApplicationBundleFixture bundles;
  bundles.createBundle("Applications/Safari.app", "com.apple.Safari", "Safari");
  bundles.createBundle("Applications/Utilities/Terminal.app", "com.apple.Terminal", "Terminal");
  bundles.createBundle("Applications/Editors/zed.app", "dev.zed", "zed");
  bundles.createBundle("Applications/Editors/Deep/Hidden.app", "com.example.hidden", "Hidden");
  // A second copy, in a later folder and spelled otherwise: the first one stays.
  bundles.createBundle("System/Applications/Safari Copy.app", "COM.apple.safari", "Safari");
  bundles.createBundle("Users/me/Applications/Notes.app", "com.apple.Notes", "Notes");
  bundles.writeFile("Applications/Broken.app/Contents/Info.plist", "not a property list");

  PosixFileSystem fileSystem;
  LibplistPropertyListDecoder decoder;
  BundleApplicationMetadataReader reader(fileSystem, decoder);
  const InstalledApplicationCatalog catalog(
      fileSystem, reader,
      InstalledApplicationCatalog::standardFolders(bundles.root(), FileURL::fromPath("/Users/me")));
  ApplicationPicker picker(catalog);
  EXPECT_TRUE(picker.applications().empty()); // nothing is read before the picker opens

  picker.open();
  EXPECT_EQ(names(picker.applications()),
            (std::vector<std::string>{"Notes Notes.app", "Safari Safari.app",
                                      "Terminal Terminal.app", "zed zed.app"}));

  picker.setSearchText("  E ");
  EXPECT_EQ(names(picker.applications()),
            (std::vector<std::string>{"Notes Notes.app", "Terminal Terminal.app", "zed zed.app"}));

  // Read again on each opening, which also clears the search.
  bundles.remove("Applications/Safari.app");
  picker.open();
  EXPECT_EQ(picker.searchText(), "");
  EXPECT_EQ(names(picker.applications()),
            (std::vector<std::string>{"Notes Notes.app", "Safari Safari Copy.app",
                                      "Terminal Terminal.app", "zed zed.app"}));
}

TEST(ApplicationPickerTest, SearchIgnoresCaseAndAccents) {
  EXPECT_TRUE(ApplicationPicker::nameMatches("Café Tracker", "CAFE"));
  EXPECT_TRUE(ApplicationPicker::nameMatches("Cafe\u0301 Tracker", "café")); // decomposed
  EXPECT_TRUE(ApplicationPicker::nameMatches("Über Notes", "uber n"));
  EXPECT_TRUE(ApplicationPicker::nameMatches("Anything", ""));
  EXPECT_FALSE(ApplicationPicker::nameMatches("Safari", "mail"));
  EXPECT_FALSE(ApplicationPicker::nameMatches("Œuvre", "oeuvre")); // not worth the trouble
}

} // namespace
} // namespace quenby
