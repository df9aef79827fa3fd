// The macOS layer cannot be built here, so what can be checked off a Mac is checked from the
// sources: the bundle's Info.plist template, and the boundary between the portable core and the
// Objective-C++ adapters.

#include "base/libplist/LibplistPropertyListDecoder.hpp"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

namespace quenby {
namespace {

namespace fs = std::filesystem;

const fs::path kSourceDir = QUENBY_SOURCE_DIR;

std::string contents(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream out;
  out << file.rdbuf();
  return out.str();
}

std::vector<fs::path> sourcesUnder(const fs::path& root) {
  std::vector<fs::path> found;
  for (const auto& item : fs::recursive_directory_iterator(root)) {
    if (item.is_regular_file()) {
      found.push_back(item.path());
    }
  }
  return found;
}

bool inMacOSFolder(const fs::path& path) {
  for (const auto& part : path) {
    if (part == "macos") {
      return true;
    }
  }
  return false;
}

// The bundle's Info.plist as CMake writes it, with every version placeholder filled in.
PropertyListValue infoPlist(int* substituted = nullptr) {
  std::string text = contents(kSourceDir / "resources/Info.plist.in");
  int count = 0;
  for (const auto& [placeholder, value] :
       {std::pair<std::string, std::string>{"@PROJECT_VERSION@", "1.2.3"},
        {"@QUENBY_BUNDLE_VERSION@", "45"}}) {
    for (auto at = text.find(placeholder); at != std::string::npos; at = text.find(placeholder)) {
      text.replace(at, placeholder.size(), value);
      ++count;
    }
  }
  if (substituted != nullptr) {
    *substituted = count;
  }
  const std::vector<std::uint8_t> bytes(text.begin(), text.end());
  auto plist = LibplistPropertyListDecoder().decode(bytes);
  EXPECT_TRUE(plist.hasValue()) << plist.error().message;
  return plist.hasValue() ? *plist : PropertyListValue(PropertyListValue::Dictionary{});
}

std::string stringAt(const PropertyListValue& plist, std::string_view key) {
  const PropertyListValue* value = plist.find(key);
  return value != nullptr && value->string() != nullptr ? *value->string() : "<missing>";
}

TEST(MacOSLayerTest, InfoPlistTemplateDescribesAnAccessoryBundle) {
  int substituted = 0;
  const PropertyListValue plist = infoPlist(&substituted);
  EXPECT_EQ(substituted, 2);
  EXPECT_EQ(stringAt(plist, "CFBundleIdentifier"), "com.brimfold.Quenby");
  EXPECT_EQ(stringAt(plist, "CFBundleExecutable"), "Quenby");
  EXPECT_EQ(stringAt(plist, "CFBundleName"), "Quenby");
  EXPECT_EQ(stringAt(plist, "CFBundlePackageType"), "APPL");
  EXPECT_EQ(stringAt(plist, "LSMinimumSystemVersion"), "13.0");
  EXPECT_EQ(stringAt(plist, "CFBundleShortVersionString"), "1.2.3");
  EXPECT_EQ(stringAt(plist, "CFBundleVersion"), "45");
  EXPECT_EQ(stringAt(plist, "CFBundleIconFile"), "AppIcon");
  // A Boolean, not the string "YES": Launch Services ignores the wrong kind.
  const PropertyListValue* agent = plist.find("LSUIElement");
  ASSERT_NE(agent, nullptr);
  ASSERT_NE(agent->boolean(), nullptr);
  EXPECT_TRUE(*agent->boolean());
}

// The privacy settings list and check the signature's identifier: signed under any other name,
// the bundle would ask for its permissions as a stranger to its own Info.plist.
TEST(MacOSLayerTest, BundleIsSignedUnderItsBundleIdentifier) {
  const std::string build = contents(kSourceDir / "cmake/QuenbyApp.cmake");
  std::smatch identifier;
  ASSERT_TRUE(std::regex_search(build, identifier,
                                std::regex(R"(set\(QUENBY_BUNDLE_IDENTIFIER\s+([^\s)]+)\))")));
  EXPECT_EQ(identifier[1].str(), stringAt(infoPlist(), "CFBundleIdentifier"));
  EXPECT_NE(build.find("--identifier ${QUENBY_BUNDLE_IDENTIFIER}"), std::string::npos);
}

TEST(MacOSLayerTest, AppleFrameworksStayInsideTheMacOSFolders) {
  const std::regex appleInclude(
      R"(#\s*(import|include)\s*<(AppKit|Foundation|CoreFoundation|CoreGraphics|Carbon|)"
      R"(ApplicationServices|CoreServices|QuartzCore|Security|ServiceManagement|objc|os|dispatch)/)");
  for (const auto& path : sourcesUnder(kSourceDir / "src")) {
    const auto extension = path.extension();
    const std::string text = contents(path);
    if (!inMacOSFolder(path)) {
      EXPECT_NE(extension, ".mm") << path << ": Objective-C++ belongs in a macos/ folder";
      EXPECT_FALSE(std::regex_search(text, appleInclude)) << path << " includes an Apple header";
    } else if (extension == ".hpp") {
      // Plain C++ headers: the Objective-C types stay in the .mm files.
      EXPECT_FALSE(std::regex_search(text, appleInclude)) << path << " includes an Apple header";
      EXPECT_EQ(text.find("#import"), std::string::npos) << path << " imports Objective-C";
    } else if (extension == ".mm") {
      EXPECT_TRUE(text.starts_with("//")) << path << " must open with its threading contract";
    }
  }
}

} // namespace
} // namespace quenby
