// `quenbyctl usage` and `letters` over a preferences file written by a simulated run. The text,
// the letters' JSON and the chart are pinned by golden files in tests/tools/golden/; after an
// intended change, regenerate them and review the difference:
//   QUENBY_UPDATE_GOLDENS=1 build/release/tests/quenby_tests --gtest_filter='UsageCommand*'
#include "quenbyctl/UsageCommand.hpp"

#include "base/BasePlatform.hpp"
#include "base/libplist/LibplistPropertyListDecoder.hpp"
#include "data/usage/FixedOffsetUsageCalendar.hpp"
#include "quenbyctl/LettersCommand.hpp"
#include "quenbyctl/SimulateCommand.hpp"
#include "simulation/LibplistPropertyListEncoder.hpp"
#include "support/ApplicationBundleFixture.hpp"

#include <cstdlib>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <iterator>
#include <nlohmann/json.hpp>
#include <sstream>

namespace quenby {
namespace {

using ::testing::HasSubstr;

const std::string kGoldenDir = std::string(QUENBY_SOURCE_DIR) + "/tests/tools/golden/";

/// Two simulated days: digit shortcuts and a letter assigned on the first, a digit and the
/// letter on the second, with a quit and a relaunch in between.
constexpr std::string_view kScenario = R"(app /Applications/Safari.app com.apple.Safari Safari
app /System/Applications/Mail.app com.apple.mail Mail
app /Applications/Notes.app com.apple.Notes Notes
dock app /System/Applications/Mail.app
dock app /Applications/Safari.app
launch
alert continue
menu toggle-hud
assign N /Applications/Notes.app
hotkey 1
hotkey 2
menu quit
wait 86400000
launch
hotkey 1
modifier left-option down
press 45
modifier left-option up
)";

std::string readText(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void expectGolden(const std::string& name, const std::string& text) {
  const std::string path = kGoldenDir + name;
  if (const char* update = std::getenv("QUENBY_UPDATE_GOLDENS"); update && *update == '1') {
    std::ofstream(path, std::ios::binary) << text;
    return;
  }
  EXPECT_EQ(text, readText(path)) << "differs from " << path << " (see the top of this file)";
}

struct CommandResult {
  int status = 0;
  std::string out;
  std::string err;
};

/// The second simulated day, in the simulation's calendar.
const WallTime kSecondDay = BasePlatform::kInertStart + std::chrono::days{1};

CommandResult usage(const std::vector<std::string>& arguments, WallTime now = kSecondDay) {
  std::ostringstream out;
  std::ostringstream err;
  const FixedOffsetUsageCalendar calendar;
  const int status =
      runUsageCommand(arguments, out, err, {now, calendar}, LibplistPropertyListDecoder());
  return {status, out.str(), err.str()};
}

CommandResult letters(const std::vector<std::string>& arguments) {
  std::ostringstream out;
  std::ostringstream err;
  const int status = runLettersCommand(arguments, out, err, LibplistPropertyListDecoder());
  return {status, out.str(), err.str()};
}

class UsageCommandTest : public ::testing::Test {
protected:
  void SetUp() override {
    std::istringstream script{std::string(kScenario)};
    std::ostringstream out;
    std::ostringstream err;
    ASSERT_EQ(runSimulateCommand({"--save-defaults", defaults, "-"}, script, out, err), 0)
        << err.str();
  }

  ApplicationBundleFixture disk;
  std::string defaults = disk.url("defaults.plist").path();
};

TEST_F(UsageCommandTest, ReadsWhatTheSimulatedRunLeftInItsDefaults) {
  const auto text = usage({"--defaults", defaults});
  ASSERT_EQ(text.status, 0) << text.err;
  expectGolden("usage.txt", text.out);

  const auto json = usage({"--json", "--defaults", defaults});
  ASSERT_EQ(json.status, 0) << json.err;
  const auto snapshot = nlohmann::json::parse(json.out);
  EXPECT_EQ(snapshot["lifetimeTotals"],
            nlohmann::json::parse(R"({"hud":0,"optionDigit":3,"optionLetter":1})"));
  const auto& days = snapshot["last90DayCategoryRows"];
  ASSERT_EQ(days.size(), 270U);
  EXPECT_EQ(days[267], nlohmann::json::parse(R"({"day":"2026-03-08","category":"hud","count":0})"));
  EXPECT_EQ(days[265]["count"], 2) << "two digit shortcuts on the first day";
  EXPECT_EQ(snapshot["allTimeAppRows"][0],
            nlohmann::json::parse(R"({"bundleIdentifier":"com.apple.mail",)"
                                  R"("displayName":"Mail","successCount":2,"failureCount":0})"));

  const auto csv = usage({"--csv", "--defaults", defaults});
  EXPECT_TRUE(csv.out.starts_with("day,category,count\n2025-12-09,hud,0\n")) << csv.out;
  EXPECT_TRUE(csv.out.ends_with("2026-03-08,optionDigit,1\n2026-03-08,optionLetter,1\n"));

  const auto svgPath = disk.url("usage.svg").path();
  ASSERT_EQ(usage({"--svg", svgPath, "--defaults", defaults}).status, 0);
  expectGolden("usage.svg", readText(svgPath));

  // A later day moves the window: the history has left it, the lifetime figures have not.
  const auto later = usage({"--json", "--defaults", defaults}, kSecondDay + std::chrono::days{90});
  EXPECT_TRUE(nlohmann::json::parse(later.out)["last90DayAppRows"].empty());
  EXPECT_EQ(usage({"--json", "--defaults", defaults, "--today", "2026-06-06"}).out, later.out);

  const auto table = letters({"--defaults", defaults});
  ASSERT_EQ(table.status, 0) << table.err;
  expectGolden("letters.txt", table.out);
  const auto lettersJSON = letters({"--json", "--defaults", defaults});
  ASSERT_EQ(lettersJSON.status, 0) << lettersJSON.err;
  expectGolden("letters.json", lettersJSON.out);
}

TEST_F(UsageCommandTest, UnreadablePreferencesFailWithTheFileAndTheKey) {
  const auto write = [&](const std::string& name, const PropertyListValue& value) {
    const auto bytes = LibplistPropertyListEncoder::encodeBinary(value);
    disk.writeFile(name, std::string(bytes.begin(), bytes.end()));
    return disk.url(name).path();
  };
  const auto data = [](std::string_view text) {
    return PropertyListValue(PropertyListValue::Data(text.begin(), text.end()));
  };
  disk.writeFile("garbage.plist", "bplist00 but not really");
  const auto garbage = disk.url("garbage.plist").path();
  const auto array = write("array.plist", PropertyListValue::Array{1, 2});
  const auto corrupt = write(
      "corrupt.plist", PropertyListValue::Dictionary{{"usageAnalytics.v1", data("{\"version\":")},
                                                     {"letterMappings.v1", data("[{}]")}});
  const auto newer = write(
      "newer.plist", PropertyListValue::Dictionary{{"usageAnalytics.v1", data(R"({"version":2})")},
                                                   {"letterMappings.v1", "[]"}});
  const auto missing = disk.url("missing.plist").path();
  const auto corruptBytes = readText(corrupt);

  const struct {
    CommandResult result;
    int status;
    std::string message;
  } cases[] = {
      {usage({}), 1, "quenbyctl usage: --defaults FILE is needed here"},
      {letters({}), 1, "quenbyctl letters: --defaults FILE is needed here"},
      {usage({"--defaults", missing}), 1, "quenbyctl usage: cannot read " + missing},
      {letters({"--defaults", garbage}), 1, garbage + " is not a property list"},
      {usage({"--defaults", array}), 1, array + " holds an array, not a dictionary"},
      {usage({"--defaults", corrupt}), 1,
       corrupt + ": \"usageAnalytics.v1\" is not a readable usage analytics document"},
      {letters({"--defaults", corrupt}), 1,
       corrupt + ": \"letterMappings.v1\" is not an array of letter-mapping records"},
      {usage({"--defaults", newer}), 1, "\"usageAnalytics.v1\" has format version 2"},
      {letters({"--defaults", newer}), 1, "\"letterMappings.v1\" holds a string, not data"},
      {usage({"--json", "--csv"}), 2, "choose one of --json, --csv and --svg"},
      {usage({"--today", "2026-02-30"}), 2, "--today must be a date"},
      {letters({"--svg", "x"}), 2, "unexpected argument '--svg'"},
  };
  for (const auto& item : cases) {
    EXPECT_EQ(item.result.status, item.status) << item.message;
    EXPECT_THAT(item.result.err, HasSubstr(item.message));
    EXPECT_EQ(item.result.out, "");
  }
  EXPECT_EQ(readText(corrupt), corruptBytes) << "read, never quarantined or rewritten";

  std::istringstream script("launch\n");
  std::ostringstream out;
  std::ostringstream err;
  EXPECT_EQ(runSimulateCommand({"--save-defaults", disk.url("no-folder/d.plist").path(), "-"},
                               script, out, err),
            1);
  EXPECT_THAT(err.str(), HasSubstr("quenbyctl simulate: cannot write"));

  // A domain without the documents is a person who never switched nor assigned a letter.
  const auto empty = write("empty.plist", PropertyListValue::Dictionary{});
  EXPECT_THAT(usage({"--defaults", empty}).out, HasSubstr("Total switches: 0\n"));
  EXPECT_TRUE(letters({"--defaults", empty}).out.starts_with("A  -\nB  -\n"));
}

} // namespace
} // namespace quenby
