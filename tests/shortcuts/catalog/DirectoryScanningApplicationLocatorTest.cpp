#include "shortcuts/catalog/DirectoryScanningApplicationLocator.hpp"

#include "base/PosixFileSystem.hpp"
#include "base/libplist/LibplistPropertyListDecoder.hpp"
#include "shortcuts/catalog/BundleApplicationMetadataReader.hpp"
#include "support/ApplicationBundleFixture.hpp"

#include <filesystem>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace quenby {
namespace {

TEST(DirectoryScanningApplicationLocatorTest, FindsBundlesOnceWithoutEnteringThemOrLooping) {
  ApplicationBundleFixture bundles;
  PosixFileSystem fileSystem;
  LibplistPropertyListDecoder decoder;
  BundleApplicationMetadataReader reader(fileSystem, decoder);

  const FileURL top = bundles.createBundle("Applications/Mail.app", "com.example.mail", "Mail");
  const FileURL nested =
      bundles.createBundle("Applications/Utilities/Deep/Mail.app", "com.example.mail", "Mail");
  // A helper inside a bundle belongs to that bundle.
  bundles.createBundle("Applications/Mail.app/Contents/Helpers/Helper.app", "com.example.helper",
                       "Helper");
  bundles.createBundle("Applications/Broken.app", "", "Broken");
  // The extension's case does not matter, for finding a bundle or for staying out of it.
  const FileURL upper = bundles.createBundle("Applications/Upper.APP", "com.example.upper", "U");
  const FileURL mixed = bundles.createBundle("Applications/Mixed.App", "com.example.mixed", "M");
  bundles.createBundle("Applications/Upper.APP/Contents/Helpers/Inner.App", "com.example.inner",
                       "Inner");
  // A link back to the root must not send the scan round in circles.
  std::filesystem::create_directory_symlink(bundles.root().path(),
                                            bundles.root().path() + "/Applications/Loop");
  const std::string locked = bundles.root().path() + "/Locked";
  bundles.createBundle("Locked/Hidden.app", "com.example.hidden", "Hidden");
  ::chmod(locked.c_str(), 0);

  DirectoryScanningApplicationLocator locator(fileSystem, reader, bundles.root());
  EXPECT_EQ(locator.applicationURLs("com.example.mail"), (std::vector<FileURL>{top, nested}));
  EXPECT_TRUE(locator.applicationURLs("com.example.helper").empty());
  EXPECT_EQ(locator.applicationURLs("com.example.upper"), std::vector<FileURL>{upper});
  EXPECT_EQ(locator.applicationURLs("com.example.mixed"), std::vector<FileURL>{mixed});
  EXPECT_TRUE(locator.applicationURLs("com.example.inner").empty());
  EXPECT_TRUE(locator.applicationURLs("").empty());
  if (::geteuid() != 0) { // the superuser lists any directory
    EXPECT_TRUE(locator.applicationURLs("com.example.hidden").empty());
  }
  ::chmod(locked.c_str(), 0755);

  bundles.remove("Applications/Utilities");
  EXPECT_EQ(locator.applicationURLs("com.example.mail").size(), 2u);
  locator.rescan();
  EXPECT_EQ(locator.applicationURLs("com.example.mail"), std::vector<FileURL>{top});
  EXPECT_EQ(locator.applicationURLs("com.example.hidden").size(), 1u);
}

} // namespace
} // namespace quenby
