// The pictures of the HUD are pinned by golden files in tests/tools/golden/. After an intended
// change to the drawing, regenerate them and review the difference:
//   QUENBY_UPDATE_GOLDENS=1 build/release/tests/quenby_tests --gtest_filter='HUDCommand*'
#include "quenbyctl/HUDCommand.hpp"

#include "hud/view/KeyboardHUDTexts.hpp"
#include "quenbyctl/KeyboardHUDSVGWriter.hpp"
#include "support/ApplicationBundleFixture.hpp"

#include <cstdlib>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <iterator>
#include <regex>
#include <sstream>

namespace quenby {
namespace {

using ::testing::HasSubstr;

const std::string kSourceDir = QUENBY_SOURCE_DIR;
const std::string kGoldenDir = kSourceDir + "/tests/tools/golden/";
const std::string kDockFixture = kSourceDir + "/tests/fixtures/dock/customised-dock.plist";

std::string readText(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void expectGolden(const std::string& name, const std::string& svg) {
  const std::string path = kGoldenDir + name;
  if (const char* update = std::getenv("QUENBY_UPDATE_GOLDENS"); update && *update == '1') {
    std::ofstream(path, std::ios::binary) << svg;
    return;
  }
  EXPECT_EQ(svg, readText(path)) << "differs from " << path << " (see the top of this file)";
}

/// Two by two blue pixels, a complete PNG file.
std::shared_ptr<const PreparedApplicationIcon> pngIcon() {
  constexpr std::string_view hex =
      "89504e470d0a1a0a0000000d494844520000000200000002080600000072b60d24000000114944415478"
      "9c63d0ebfeff1f8419600c005c000add16ce61720000000049454e44ae426082";
  PreparedApplicationIcon icon;
  icon.encoding = PreparedApplicationIcon::Encoding::png;
  icon.pixelsWide = 2;
  icon.pixelsHigh = 2;
  for (std::size_t i = 0; i < hex.size(); i += 2) {
    icon.bitmapData.push_back(
        static_cast<std::uint8_t>(std::stoi(std::string(hex.substr(i, 2)), nullptr, 16)));
  }
  return std::make_shared<const PreparedApplicationIcon>(std::move(icon));
}

AppMapping mapping(MappingSource source, const std::string& name, const std::string& bundle,
                   bool found = true) {
  const auto url = FileURL::fromPath("/Applications/" + name + ".app");
  return {.displayName = name,
          .bundleIdentifier = bundle,
          .lastKnownURL = url,
          .resolution =
              found ? ApplicationResolution::resolved(url) : ApplicationResolution::notFound(),
          .source = source};
}

/// A Dock with three applications and a hole, letters of which one is missing from the disk
/// and one is running, and one icon loaded (a raw-pixel one stays a placeholder).
KeyboardHUDMappingCache scene() {
  KeyboardHUDMappingCache cache;
  auto& dock = cache.snapshot.numberEntries;
  dock.set(1,
           NumberMappingEntry::mapped(mapping(MappingSource::dock(1), "Mail", "com.apple.mail")));
  dock.set(
      2, NumberMappingEntry::mapped(mapping(MappingSource::dock(2), "Safari", "com.apple.Safari")));
  dock.set(4, NumberMappingEntry::mapped(
                  mapping(MappingSource::dock(4), "A&B <Term>", "com.apple.Terminal")));
  auto& letters = cache.snapshot.letterMappings;
  letters.emplace('C', mapping(MappingSource::letter('C'), "Calendar", "com.apple.iCal"));
  letters.emplace('X', mapping(MappingSource::letter('X'), "Xcode", "com.apple.dt.Xcode", false));
  letters.emplace('S', mapping(MappingSource::letter('S'), "Safari", "com.apple.Safari"));
  cache.runningBundleIdentifiers = {"com.apple.Safari", "com.apple.dt.Xcode"};
  cache.icons.emplace("com.apple.mail", pngIcon());
  cache.icons.emplace("com.apple.iCal",
                      std::make_shared<const PreparedApplicationIcon>(PreparedApplicationIcon{
                          .encoding = PreparedApplicationIcon::Encoding::rgba8Premultiplied,
                          .bitmapData = {0, 0, 0, 0},
                          .pixelsWide = 1,
                          .pixelsHigh = 1,
                          .bytesPerRow = 4}));
  return cache;
}

std::string
draw(HUDSizePreference size, HUDThemePreference theme, KeyboardHUDMappingCache cache,
     KeyboardHUDColorScheme environment,
     KeyboardHUDContentAnimationPhase phase = KeyboardHUDContentAnimationPhase::visible) {
  EnglishLocalizer localizer;
  KeyboardHUDViewModel model(size, theme, localizer.localized(kHUDOpenSettingsAccessibilityLabel));
  model.setCurrent(std::move(cache));
  model.setContentAnimationPhase(phase);
  return KeyboardHUDSVGWriter::write(model, environment, KeyboardHUDContentBuilder(localizer));
}

std::vector<std::string> matches(const std::string& text, const std::string& pattern) {
  const std::regex expression(pattern);
  std::vector<std::string> found;
  for (auto it = std::sregex_iterator(text.begin(), text.end(), expression);
       it != std::sregex_iterator(); ++it) {
    found.push_back((*it)[1]);
  }
  return found;
}

TEST(HUDCommandGoldenTest, ScenesDrawAsPinned) {
  const auto lightStandard = draw(HUDSizePreference::standard, HUDThemePreference::light, scene(),
                                  KeyboardHUDColorScheme::dark);
  expectGolden("hud-light-standard.svg", lightStandard);
  expectGolden("hud-dark-large.svg", draw(HUDSizePreference::large, HUDThemePreference::dark,
                                          scene(), KeyboardHUDColorScheme::light));
  expectGolden("hud-small-empty.svg", draw(HUDSizePreference::small, HUDThemePreference::system, {},
                                           KeyboardHUDColorScheme::dark));

  // What the goldens must show, so that regenerating them cannot quietly lose it.
  EXPECT_EQ(matches(lightStandard, "<text [^>]*font-size=\"(?:25|13.75)\"[^>]*>").size(), 35U);
  EXPECT_EQ(matches(lightStandard, "href=\"data:image/png;base64,([^\"]*)\"").size(), 1U);
  EXPECT_THAT(lightStandard, HasSubstr("aria-label=\"X, Xcode, invalid mapping, running\""));
  EXPECT_THAT(lightStandard, HasSubstr("aria-label=\"S, bound to Safari, running\""));
  EXPECT_THAT(lightStandard, HasSubstr(">A&amp;B &lt;Term&gt;</text>"));
  EXPECT_THAT(lightStandard, HasSubstr("aria-label=\"Open Quenby Settings\""));
}

TEST(HUDCommandGoldenTest, FadingOutHidesTheKeysButNotThePanel) {
  const auto svg = draw(HUDSizePreference::small, HUDThemePreference::light, scene(),
                        KeyboardHUDColorScheme::light, KeyboardHUDContentAnimationPhase::fadingOut);
  EXPECT_THAT(svg, HasSubstr("<g opacity=\"0\">"));
  EXPECT_THAT(svg, HasSubstr("filter=\"url(#hud-shadow)\""));
}

struct CommandResult {
  int status = 0;
  std::string out;
  std::string err;
};

CommandResult runHUD(const std::vector<std::string>& arguments,
                     const HUDCommandIconSource& icons = {}) {
  std::ostringstream out;
  std::ostringstream err;
  const int status = runHUDCommand(arguments, out, err, icons);
  return {status, out.str(), err.str()};
}

TEST(HUDCommandTest, DrawsTheDockAndTheLettersResolvedAgainstTheDisk) {
  ApplicationBundleFixture disk;
  disk.createBundle("System/Applications/Mail.app", "com.apple.mail", "Mail");
  disk.createBundle("Applications/Visual Studio Code.app", "com.microsoft.VSCode", "Code");
  disk.createBundle("Applications/Notes.app", "com.apple.Notes", "Notes");
  disk.writeFile("letters.json",
                 R"([{"letter":"n","bundleIdentifier":"com.apple.Notes","displayName":"Notes",)"
                 R"("lastKnownURL":"file:///Applications/Notes.app"},)"
                 R"({"letter":"G","bundleIdentifier":"com.example.gone","displayName":"Gone",)"
                 R"("lastKnownURL":"file:///Applications/Gone.app"}])");
  std::vector<FileURL> asked;
  const auto icons = [&](const FileURL& bundle) -> std::shared_ptr<const PreparedApplicationIcon> {
    asked.push_back(bundle);
    return bundle.lastPathComponent() == "Notes.app" ? pngIcon() : nullptr;
  };

  const auto svgPath = disk.url("hud.svg").path();
  const auto result =
      runHUD({"--svg", svgPath, "--plist", kDockFixture, "--root", disk.root().path(), "--letters",
              disk.url("letters.json").path(), "--size", "small", "--theme", "dark"},
             icons);
  ASSERT_EQ(result.status, 0) << result.err;
  EXPECT_EQ(result.out + result.err, "");
  const auto svg = readText(svgPath);
  const auto spoken = matches(svg, "<g aria-label=\"([^\"]*)\">");
  ASSERT_EQ(spoken.size(), 35U);
  EXPECT_EQ(spoken[0], "1, bound to Mail");
  EXPECT_EQ(spoken[1], "2, bound to Visual Studio Code");
  EXPECT_EQ(spoken[2], "3, Caf\u00e9 N\u00f6ir, invalid mapping");
  EXPECT_EQ(spoken[4], "5, unbound");
  EXPECT_EQ(spoken[8], "9, unbound");
  EXPECT_EQ(spoken[9 + 10 + 4], "G, Gone, invalid mapping");
  EXPECT_EQ(spoken[9 + 10 + 9 + 5], "N, bound to Notes");
  EXPECT_EQ(matches(svg, "href=\"data:image/png;base64,([^\"]*)\"").size(), 1U);
  // Only resolved applications have a bundle to take an icon from.
  EXPECT_EQ(asked.size(), 3U);
  EXPECT_THAT(svg, HasSubstr("fill=\"#000000\" fill-opacity=\"0.72\""));
  EXPECT_THAT(svg, HasSubstr("width=\"820\" height=\"390\""));
}

TEST(HUDCommandTest, BadFlagsAndUnreadableFilesFailWithAMessage) {
  ApplicationBundleFixture disk;
  const auto svgPath = disk.url("hud.svg").path();
  disk.writeFile("not-json.json", "{");
  disk.writeFile("garbage.plist", "bplist00 but not really");
  disk.writeFile("bad-record.json", R"([{"letter":"1","bundleIdentifier":"a","displayName":"A",)"
                                    R"("lastKnownURL":"file:///Applications/A.app"}])");

  const struct {
    std::vector<std::string> arguments;
    int status;
    std::string message;
  } cases[] = {
      {{}, 2, "--svg FILE is required"},
      {{"--svg"}, 2, "--svg needs a value"},
      {{"--svg", svgPath, "--json"}, 2, "unexpected argument '--json'"},
      {{"--svg", svgPath, "--theme", "sepia"}, 2, "--theme must be light, dark or system"},
      {{"--svg", svgPath, "--size", "huge"}, 2, "--size must be small, standard or large"},
      {{"--svg", svgPath, "--root", disk.url("nowhere").path()}, 2, "is not a directory"},
      {{"--svg", svgPath, "--plist", disk.url("missing.plist").path()}, 1, "cannot be read"},
      {{"--svg", svgPath, "--plist", disk.url("garbage.plist").path()}, 1, "not a property list"},
      {{"--svg", svgPath, "--letters", disk.url("missing.json").path()}, 1, "cannot read"},
      {{"--svg", svgPath, "--letters", disk.url("not-json.json").path()}, 1, "is not JSON"},
      {{"--svg", svgPath, "--letters", disk.url("bad-record.json").path()},
       1,
       "cannot be repaired"},
      {{"--svg", disk.url("no-folder/hud.svg").path()}, 1, "cannot write"},
  };
  for (const auto& item : cases) {
    const auto result = runHUD(item.arguments);
    EXPECT_EQ(result.status, item.status) << item.message;
    EXPECT_TRUE(result.err.starts_with("quenbyctl hud: ")) << result.err;
    EXPECT_THAT(result.err, HasSubstr(item.message));
  }
  EXPECT_EQ(readText(svgPath), "") << "nothing is written when an input is bad";
  EXPECT_EQ(runHUD({"--help"}).status, 0);
}

} // namespace
} // namespace quenby
