// The command's sources belong to the quenbyctl executable, so this test compiles them in.
#include "quenbyctl/DockCommand.hpp"

#include "simulation/LibplistPropertyListEncoder.hpp"
#include "support/ApplicationBundleFixture.hpp"
#include "support/DockItems.hpp"

#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <nlohmann/json.hpp>
#include <sstream>

namespace quenby {
namespace {

const std::string kFixtures = std::string(QUENBY_SOURCE_DIR) + "/tests/fixtures/dock/";

struct CommandResult {
  int status = 0;
  std::string out;
  std::string err;
};

CommandResult runDock(const std::vector<std::string>& arguments) {
  std::ostringstream out;
  std::ostringstream err;
  const int status = runDockCommand(arguments, out, err);
  return {status, out.str(), err.str()};
}

std::string readText(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// Runs the command on both the binary and the XML form of a fixture, which must print the same
/// single line, and returns that line parsed.
nlohmann::ordered_json dockJSON(const std::string& fixture, const FileURL& root) {
  const auto binary =
      runDock({"--plist", kFixtures + fixture + ".plist", "--root", root.path(), "--json"});
  const auto xml =
      runDock({"--json", "--root", root.path() + "/", "--plist", kFixtures + fixture + ".xml"});
  EXPECT_EQ(binary.status, 0) << binary.err;
  EXPECT_EQ(binary.err, "");
  EXPECT_EQ(binary.out, xml.out);
  EXPECT_EQ(std::count(binary.out.begin(), binary.out.end(), '\n'), 1);
  return nlohmann::ordered_json::parse(binary.out);
}

TEST(DockCommandTest, AFreshAccountsDockResolvesAgainstTheBundlesOnDisk) {
  ApplicationBundleFixture disk;
  disk.createBundle("System/Library/CoreServices/Finder.app", "com.apple.finder", "Finder");
  disk.createBundle("System/Applications/Launchpad.app", "com.apple.launchpad.launcher",
                    "Launchpad");
  disk.createBundle("System/Volumes/Preboot/Cryptexes/App/System/Applications/Safari.app",
                    "com.apple.Safari", "Safari");
  disk.createBundle("System/Applications/Messages.app", "com.apple.MobileSMS", "Messages");
  disk.createBundle("System/Applications/Mail.app", "com.apple.mail", "Mail");
  disk.createBundle("Applications/Photos.app", "com.apple.Photos", "Photos");
  disk.createBundle("System/Applications/FaceTime.app", "com.apple.FaceTime", "FaceTime");
  // Not Calendar's identifier: the bundle at the Dock's path is someone else.
  disk.createBundle("System/Applications/Calendar.app", "com.example.calendar", "Calendar");
  disk.createBundle("Applications/Contacts.app", "com.apple.AddressBook", "Contacts");
  disk.createBundle("Users/alex/Applications/Contacts.app", "com.apple.AddressBook", "Contacts");

  EXPECT_EQ(dockJSON("default-dock", disk.root()),
            nlohmann::ordered_json::parse(readText(kFixtures + "default-dock.expected.json")));
}

TEST(DockCommandTest, ACustomisedDockSkipsWhatIsNotAPinnedApplication) {
  ApplicationBundleFixture disk;
  disk.createBundle("System/Library/CoreServices/Finder.app", "com.apple.finder", "Finder");
  disk.createBundle("System/Applications/Mail.app", "com.apple.mail", "Mail");
  disk.createBundle("Applications/Visual Studio Code.app", "com.microsoft.VSCode", "Code");
  disk.createBundle("Applications/Caf\u00e9 N\u00f6ir.app", "com.example.cafe-noir",
                    "Caf\u00e9 N\u00f6ir");
  disk.createBundle("System/Applications/Utilities/Terminal.app", "com.apple.Terminal", "Terminal");
  disk.createBundle("Applications/Ghostwriter.app", "com.example.ghostwriter", "Ghostwriter");
  disk.createBundle("System/Volumes/Preboot/Cryptexes/App/System/Applications/Safari.app",
                    "com.apple.Safari", "Safari");
  disk.createBundle("Users/alex/Applications/\u65e5\u672c\u8a9e\u30a8\u30c7\u30a3\u30bf.app",
                    "jp.example.editor", "\u65e5\u672c\u8a9e\u30a8\u30c7\u30a3\u30bf");

  EXPECT_EQ(dockJSON("customised-dock", disk.root()),
            nlohmann::ordered_json::parse(readText(kFixtures + "customised-dock.expected.json")));

  const auto text =
      runDock({"--plist", kFixtures + "customised-dock.plist", "--root", disk.root().path()});
  EXPECT_EQ(text.status, 0);
  EXPECT_EQ(
      text.out,
      "\u23251  Mail  /System/Applications/Mail.app\n"
      "\u23252  Visual Studio Code  /Applications/Visual Studio Code.app\n"
      "\u23253  Caf\u00e9 N\u00f6ir  /Applications/Caf\u00e9 N\u00f6ir.app\n"
      "\u23254  Terminal  /System/Applications/Utilities/Terminal.app\n"
      "\u23255  (invalid) Ghostwriter: The pinned Dock application has no bundle "
      "identifier.\n"
      "\u23256  Safari  /System/Volumes/Preboot/Cryptexes/App/System/Applications/Safari.app\n"
      "\u23257  \u65e5\u672c\u8a9e\u30a8\u30c7\u30a3\u30bf  /Applications/\u65e5\u672c\u8a9e"
      "\u30a8\u30c7\u30a3\u30bf.app  \u2192 /Users/alex/Applications/\u65e5\u672c\u8a9e"
      "\u30a8\u30c7\u30a3\u30bf.app\n"
      "\u23258  (empty)\n"
      "\u23259  (empty)\n");
}

TEST(DockCommandTest, WithoutARootPathsAreTakenAsTheyAre) {
  ApplicationBundleFixture disk;
  const FileURL editor = disk.createBundle("Apps/Caf\u00e9 Editor.app", "com.example.editor", "E");
  const PropertyListValue::Dictionary domain{
      {"persistent-apps",
       PropertyListValue::Array{
           DockItems::application("Editor", "com.example.editor", editor.absoluteString() + "/"),
           DockItems::application("Gone", "com.example.gone", "/nowhere/Gone.app")}}};
  disk.writeFile("com.apple.dock.xml", LibplistPropertyListEncoder::encodeXML(domain));

  const auto result = runDock({"--plist", disk.url("com.apple.dock.xml").path(), "--json"});
  ASSERT_EQ(result.status, 0) << result.err;
  const auto positions = nlohmann::ordered_json::parse(result.out)["positions"];
  EXPECT_EQ(positions[0]["path"], editor.path());
  EXPECT_EQ(positions[0]["resolvedPath"], editor.path());
  EXPECT_EQ(positions[1]["resolution"], "notFound");
  EXPECT_EQ(positions[2],
            (nlohmann::ordered_json{
                {"position", 3}, {"state", "unavailable"}, {"problem", "emptyDockPosition"}}));
}

TEST(DockCommandTest, UnreadableInputAndBadUsageFailWithTheirOwnStatus) {
  ApplicationBundleFixture disk;
  disk.writeFile("garbage.plist", "bplist00 but not really");
  disk.writeFile("no-apps.plist",
                 LibplistPropertyListEncoder::encodeXML(
                     PropertyListValue::Dictionary{{"tilesize", std::int64_t{48}}}));

  const auto missing = runDock({"--plist", disk.url("absent.plist").path()});
  EXPECT_EQ(missing.status, 1);
  EXPECT_EQ(missing.out, "");
  EXPECT_EQ(missing.err,
            "quenbyctl dock: " + disk.url("absent.plist").path() + ": cannot be read\n");

  const auto garbage = runDock({"--plist", disk.url("garbage.plist").path(), "--json"});
  EXPECT_EQ(garbage.status, 1);
  EXPECT_TRUE(garbage.err.starts_with("quenbyctl dock: " + disk.url("garbage.plist").path() +
                                      ": not a property list"))
      << garbage.err;

  // Read, but without any pinned applications: every position says why.
  const auto noApps = runDock({"--plist", disk.url("no-apps.plist").path()});
  EXPECT_EQ(noApps.status, 0);
  EXPECT_TRUE(noApps.out.starts_with(
      "\u23251  (unavailable) Dock persistent applications are missing.\n\u23252  "));

  for (const std::vector<std::string>& arguments :
       std::vector<std::vector<std::string>>{{},
                                             {"--json"},
                                             {"--plist"},
                                             {"--plist", "x", "--verbose"},
                                             {"--plist", "x", "--root", disk.url("none").path()}}) {
    const auto usage = runDock(arguments);
    EXPECT_EQ(usage.status, 2);
    EXPECT_EQ(usage.out, "");
    EXPECT_TRUE(usage.err.ends_with("usage: quenbyctl dock --plist FILE [--root DIR] [--json]\n"))
        << usage.err;
  }
}

} // namespace
} // namespace quenby
