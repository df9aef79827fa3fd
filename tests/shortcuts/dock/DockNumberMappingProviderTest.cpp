#include "shortcuts/dock/DockNumberMappingProvider.hpp"

#include "base/ManualScheduler.hpp"
#include "shortcuts/dock/SystemDockPreferenceReader.hpp"
#include "support/DockItems.hpp"
#include "support/ScriptedApplicationCatalogMonitor.hpp"
#include "support/ScriptedApplicationResolver.hpp"
#include "support/ScriptedDistributedNotificationCenter.hpp"

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <vector>

namespace quenby {
namespace {

using namespace std::chrono_literals;

const PropertyListValue kFinder = DockItems::application(
    "Finder", "com.apple.finder", "file:///System/Library/CoreServices/Finder.app/");
const PropertyListValue kMail =
    DockItems::application("Mail", "com.apple.mail", "file:///System/Applications/Mail.app/");
const PropertyListValue kSafari =
    DockItems::application("Safari", "com.apple.Safari", "file:///Applications/Safari.app/");

class DockNumberMappingProviderTest : public ::testing::Test {
protected:
  DockNumberMappingProviderTest() {
    provider->setOnSnapshotChanged(
        [this](const NumberMappingSnapshot& snapshot) { published.push_back(snapshot.revision); });
  }

  /// The name of a mapped position, or the problem's case and message.
  std::string describe(int position) const {
    const auto& entry = provider->current().entries.at(position);
    if (const auto* mapping = entry.mapping()) {
      return mapping->displayName;
    }
    const auto* problem = entry.problem();
    return std::string(problem->name()) +
           (problem->message().empty() ? "" : ": " + problem->message());
  }

  void expectEveryPosition(const std::string& description) const {
    for (int position = 1; position <= 9; ++position) {
      EXPECT_EQ(describe(position), description) << "position " << position;
    }
  }

  PropertyListValue::Array dock;
  bool missing = false;
  bool synchronizes = true;
  SystemDockPreferenceReader reader{
      [this] { return synchronizes; },
      [this] { return missing ? std::nullopt : std::optional<PropertyListValue>(dock); }};
  ScriptedApplicationResolver resolver;
  ManualScheduler scheduler;
  ScriptedDistributedNotificationCenter center;
  ScriptedApplicationCatalogMonitor monitor;
  EnglishLocalizer localizer;
  std::unique_ptr<DockNumberMappingProvider> provider = std::make_unique<DockNumberMappingProvider>(
      reader, resolver, scheduler, center, &monitor, localizer);
  std::vector<std::uint64_t> published;
};

TEST_F(DockNumberMappingProviderTest, PositionsFollowTheDockSkippingEverythingButPinnedApps) {
  const auto trashByPath =
      DockItems::application("Trash", "", "/System/Library/CoreServices/Trash.app");
  const auto runningOnly = DockItems::withKey(
      DockItems::application("Notes", "com.apple.Notes", "file:///System/Applications/Notes.app/"),
      "is-running-only", true);
  const auto runningOnlyInTileData = DockItems::withTileData(
      DockItems::application("Maps", "com.apple.Maps", "file:///System/Applications/Maps.app/"),
      "is-running-only", PropertyListValue(std::int64_t{1}));
  const auto notRunningOnly = DockItems::withTileData(
      DockItems::application("Music", "com.apple.Music", "file:///System/Applications/Music.app/"),
      "is-running-only", PropertyListValue(0.0));
  const auto bare = DockItems::withTileData(
      DockItems::withTileData(DockItems::application("Ghost", "", "/x"), "file-data", {}),
      "file-label", {});
  const auto finderUpperCase = DockItems::application(
      "Finder", "COM.APPLE.FINDER", "file:///System/Library/CoreServices/Finder.app/");
  dock = {kFinder,
          kMail,
          DockItems::spacer(),
          DockItems::spacer("small-spacer-tile"),
          DockItems::folder("file:///Users/me/Downloads/", "Downloads"),
          DockItems::webLink("https://example.com/", "Example"),
          DockItems::document("file:///Users/me/Documents/Report.pdf", "Report"),
          runningOnly,
          runningOnlyInTileData,
          bare,
          trashByPath,
          finderUpperCase,
          DockItems::withKey(kSafari, "tile-type", " File-Tile\n"),
          notRunningOnly};
  provider->reload(false);

  EXPECT_EQ(describe(1), "Mail");
  EXPECT_EQ(describe(2), "Safari");
  EXPECT_EQ(describe(3), "Music");
  for (int position = 4; position <= 9; ++position) {
    EXPECT_EQ(describe(position), "emptyDockPosition") << position;
  }
  const auto& safari = *provider->current().entries.at(2).mapping();
  EXPECT_EQ(safari.bundleIdentifier, "com.apple.Safari");
  EXPECT_EQ(safari.lastKnownURL, FileURL::fromPath("/Applications/Safari.app"));
  EXPECT_EQ(safari.source, MappingSource::dock(2));
  EXPECT_EQ(safari.resolution, ApplicationResolution::resolved(safari.lastKnownURL));
  EXPECT_EQ(provider->current().revision, 1u);
}

TEST_F(DockNumberMappingProviderTest, ReadsOnlyTheFirstNineApplications) {
  for (int i = 1; i <= 12; ++i) {
    const std::string name = "App" + std::to_string(i);
    dock.push_back(DockItems::application(name, "com.example." + name,
                                          "file:///Applications/" + name + ".app"));
  }
  provider->reload(false);
  for (int position = 1; position <= 9; ++position) {
    EXPECT_EQ(describe(position), "App" + std::to_string(position));
  }
  EXPECT_EQ(resolver.questions.size(), 9u);
  EXPECT_EQ(provider->lastPinnedTiles()->size(), 9u);

  // Items past the ninth application cannot change anything; those before it can.
  dock.insert(dock.begin() + 10, DockItems::spacer());
  dock.back() = kMail;
  provider->reload(false);
  EXPECT_EQ(resolver.questions.size(), 9u);
  dock.insert(dock.begin() + 3, DockItems::spacer());
  provider->reload(false);
  EXPECT_EQ(resolver.questions.size(), 9u);
  dock.erase(dock.begin());
  provider->reload(false);
  EXPECT_EQ(describe(1), "App2");
  EXPECT_EQ(describe(9), "App10");
  dock.erase(dock.begin() + 5, dock.end());
  provider->reload(false);
  EXPECT_EQ(describe(4), "App5");
  EXPECT_EQ(describe(5), "emptyDockPosition");
  EXPECT_EQ(provider->current().revision, 3u);
}

TEST_F(DockNumberMappingProviderTest, UnusableItemsExplainThemselvesAtTheirPosition) {
  // No tile data at all: kept as an empty tile, so the digit reports why it does nothing.
  PropertyListValue::Dictionary noTileData{{"GUID", std::int64_t{7}}, {"tile-type", "file-tile"}};
  const auto noIdentifier =
      DockItems::application("", "", "file:///Applications/Visual%20Studio%20Code.app/");
  const auto noURL = DockItems::withTileData(kMail, "file-data", {});
  dock = {noTileData, noIdentifier, noURL, kSafari};
  provider->reload(false);

  EXPECT_EQ(describe(1),
            "invalidDockEntry: Dock position 1: The pinned Dock application has no readable URL.");
  EXPECT_EQ(describe(2), "invalidDockEntry: Visual Studio Code: The pinned Dock application has "
                         "no bundle identifier.");
  EXPECT_EQ(describe(3),
            "invalidDockEntry: Mail: The pinned Dock application has no readable URL.");
  EXPECT_EQ(describe(4), "Safari");
  EXPECT_EQ(resolver.questions.size(), 1u);
}

TEST_F(DockNumberMappingProviderTest,
       AFailedReadMakesEveryPositionUnavailableUntilTheNextGoodRead) {
  EXPECT_EQ(provider->current(), NumberMappingSnapshot::placeholder(localizer));

  missing = true;
  provider->reload(false);
  expectEveryPosition("preferencesUnavailable: Dock persistent applications are missing.");
  EXPECT_FALSE(provider->lastPinnedTiles().has_value());

  missing = false;
  synchronizes = false;
  provider->reload(false);
  expectEveryPosition("preferencesUnavailable: Dock preferences could not be synchronized.");

  synchronizes = true;
  dock = {kMail, PropertyListValue("not a dictionary")};
  provider->reload(false);
  expectEveryPosition("preferencesUnavailable: Dock persistent applications are not in the "
                      "expected array format.");

  dock = {kMail};
  provider->reload(false);
  EXPECT_EQ(describe(1), "Mail");
  EXPECT_EQ(published, (std::vector<std::uint64_t>{1, 2, 3, 4}));

  // The same failure twice publishes once.
  missing = true;
  provider->reload(false);
  provider->reload(false);
  EXPECT_EQ(provider->current().revision, 5u);
}

TEST_F(DockNumberMappingProviderTest, TheSameDockAfterAFailedReadRestoresEveryPosition) {
  const auto failures = std::vector<std::function<void()>>{
      [this] { missing = true; }, [this] { synchronizes = false; },
      [this] {
        dock = {kMail, PropertyListValue("not a dictionary")};
      }};
  for (const auto& fail : failures) {
    dock = {kMail, kSafari};
    provider->reload(false);
    fail();
    provider->reload(false);
    ASSERT_NE(describe(1), "Mail");

    missing = false;
    synchronizes = true;
    dock = {kMail, kSafari};
    provider->reload(false);
    EXPECT_EQ(describe(1), "Mail");
    EXPECT_EQ(describe(2), "Safari");
    EXPECT_EQ(describe(3), "emptyDockPosition");
  }
}

TEST_F(DockNumberMappingProviderTest, OnlyRealChangesPublishAndOnlyCatalogChangesReResolve) {
  dock = {kFinder, kMail, kSafari};
  provider->start();
  EXPECT_EQ(published, (std::vector<std::uint64_t>{1}));
  EXPECT_EQ(resolver.questions.size(), 2u);

  // Re-pinned: a different GUID and alias, the same tiles.
  dock = {kFinder, DockItems::withKey(kMail, "GUID", std::int64_t{99}),
          DockItems::withTileData(kSafari, "book", PropertyListValue::Data{1, 2, 3})};
  provider->reload(false);
  EXPECT_EQ(published.size(), 1u);
  EXPECT_EQ(resolver.questions.size(), 2u);

  // The catalog changed but both applications resolve as before.
  monitor.reportChange();
  EXPECT_EQ(resolver.questions.size(), 4u);
  EXPECT_EQ(published.size(), 1u);

  resolver.answers.emplace("com.apple.Safari", ApplicationResolution::notFound());
  monitor.reportChange();
  EXPECT_EQ(published, (std::vector<std::uint64_t>{1, 2}));
  EXPECT_EQ(provider->current().entries.at(2).mapping()->resolution,
            ApplicationResolution::notFound());

  // A changed label is a changed tile.
  dock = {DockItems::withTileData(kMail, "file-label", PropertyListValue("Post"))};
  provider->reload(false);
  EXPECT_EQ(describe(1), "Post");
  EXPECT_EQ(describe(2), "emptyDockPosition");
  EXPECT_EQ(provider->current().revision, 3u);
}

TEST_F(DockNumberMappingProviderTest, StartHooksNotificationsPollAndCatalogUntilStopped) {
  dock = {kMail};
  provider->start();
  provider->start();
  EXPECT_TRUE(provider->isRunning());
  EXPECT_EQ(describe(1), "Mail");
  EXPECT_EQ(monitor.starts, 1);
  EXPECT_EQ(center.observerCount(), 3u);

  // A notification reloads once the main queue gets to it, not inside the delivery.
  dock = {kSafari};
  center.post("com.apple.dock.prefchanged");
  EXPECT_EQ(describe(1), "Mail");
  scheduler.runPending();
  EXPECT_EQ(describe(1), "Safari");

  for (const char* name : {"com.apple.dock.settingschange", "com.apple.dock.restart"}) {
    dock = {kMail, kSafari};
    center.post(name);
    scheduler.runPending();
    EXPECT_EQ(describe(2), "Safari") << name;
    dock = {kSafari};
    center.post(name);
    scheduler.runPending();
    EXPECT_EQ(describe(2), "emptyDockPosition") << name;
  }

  // Without any notification the poll notices within half a second.
  dock = {kMail};
  scheduler.advanceBy(499ms);
  EXPECT_EQ(describe(1), "Safari");
  scheduler.advanceBy(1ms);
  EXPECT_EQ(describe(1), "Mail");

  provider->stop();
  provider->stop();
  EXPECT_FALSE(provider->isRunning());
  EXPECT_EQ(center.observerCount(), 0u);
  dock = {kSafari};
  center.post("com.apple.dock.prefchanged");
  scheduler.advanceBy(2s);
  EXPECT_EQ(describe(1), "Mail");
  EXPECT_EQ(scheduler.pendingCount(), 0u);

  provider->start();
  EXPECT_EQ(describe(1), "Safari");
  EXPECT_EQ(center.observerCount(), 3u);
}

TEST_F(DockNumberMappingProviderTest, CallbacksOutliveTheProviderHarmlessly) {
  dock = {kMail};
  provider->start();
  center.post("com.apple.dock.restart");
  provider.reset();
  monitor.reportChange();
  scheduler.advanceBy(1s);
  EXPECT_EQ(center.observerCount(), 0u);
  EXPECT_EQ(scheduler.pendingCount(), 0u);
}

} // namespace
} // namespace quenby
