#include "base/FileURL.hpp"

#include <gtest/gtest.h>

namespace quenby {
namespace {

TEST(FileURLTest, StandardisesEveryWayOfWritingOneLocation) {
  const auto expected = FileURL::fromPath("/Applications/Safari.app");
  for (const char* written :
       {"/Applications/Safari.app/", "/Applications/./Safari.app", "//Applications//Safari.app",
        "/Applications/Utilities/../Safari.app", "Applications/Safari.app"}) {
    EXPECT_EQ(FileURL::fromPath(written), expected) << written;
  }
  EXPECT_EQ(FileURL::fromPath("/..").path(), "/");
  EXPECT_EQ(FileURL::fromPath("").path(), "/");
}

TEST(FileURLTest, ParsesFileURLStringsWithPercentEscapes) {
  EXPECT_EQ(FileURL::fromString("file:///Applications/Visual%20Studio%20Code.app/")->path(),
            "/Applications/Visual Studio Code.app");
  EXPECT_EQ(FileURL::fromString("file://localhost/Applications/Mail.app")->path(),
            "/Applications/Mail.app");
  EXPECT_EQ(FileURL::fromString("FILE:///Applications/Caf%C3%A9.app")->path(),
            "/Applications/Caf\xC3\xA9.app");
  EXPECT_EQ(FileURL::fromString("file:/Applications/Mail.app")->path(), "/Applications/Mail.app");
  // The query or the fragment ends the path, whichever comes first; the host is case-blind.
  for (const char* decorated : {"file:///a.app?x=1#frag", "file:///a.app#frag",
                                "file:///a.app#frag?x=1", "file://LOCALHOST/a.app"}) {
    EXPECT_EQ(FileURL::fromString(decorated), FileURL::fromPath("/a.app")) << decorated;
  }
  for (const char* rejected :
       {"https://example.com/a.app", "file://server/share/a.app", "file:///bad%2", "file:///bad%zz",
        "file:///nul%00byte", "file:relative/a.app", "", "file:"}) {
    EXPECT_FALSE(FileURL::fromString(rejected).has_value()) << rejected;
  }
}

TEST(FileURLTest, WritesBackAPercentEncodedString) {
  const auto url = FileURL::fromPath("/Applications/Caf\xC3\xA9 Bar.app");
  EXPECT_EQ(url.absoluteString(), "file:///Applications/Caf%C3%A9%20Bar.app");
  EXPECT_EQ(FileURL::fromString(url.absoluteString()), url);
}

TEST(FileURLTest, ComponentsAndExtensions) {
  const auto url = FileURL::fromPath("/Applications/Safari.app");
  EXPECT_EQ(url.lastPathComponent(), "Safari.app");
  EXPECT_EQ(url.pathExtension(), "app");
  EXPECT_EQ(url.lastPathComponentWithoutExtension(), "Safari");
  EXPECT_EQ(FileURL::fromPath("/Users/x/.hidden").pathExtension(), "");
  EXPECT_EQ(FileURL::fromPath("/a/archive.tar.gz").pathExtension(), "gz");
  for (const char* bundle : {"/A/Mail.app", "/A/Mail.APP", "/A/Mail.App", "/A/x.y.aPp"}) {
    EXPECT_TRUE(FileURL::fromPath(bundle).hasPathExtension("app")) << bundle;
  }
  for (const char* other :
       {"/A/Mail.apps", "/A/Mail.ap", "/A/app", "/A/.app", "/A/Mail.app.zip", "/A/Mailapp", "/"}) {
    EXPECT_FALSE(FileURL::fromPath(other).hasPathExtension("app")) << other;
  }
  EXPECT_EQ(url.appending("Contents/Info.plist").path(),
            "/Applications/Safari.app/Contents/Info.plist");
  EXPECT_EQ(url.deletingLastPathComponent().path(), "/Applications");
  EXPECT_TRUE(url.isInside(FileURL::fromPath("/Applications")));
  EXPECT_FALSE(
      FileURL::fromPath("/ApplicationsOld/x.app").isInside(FileURL::fromPath("/Applications")));
  EXPECT_FALSE(url.isInside(url));
}

} // namespace
} // namespace quenby
