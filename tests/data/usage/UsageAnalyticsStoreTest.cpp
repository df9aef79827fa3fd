#include "data/usage/UsageAnalyticsStore.hpp"

#include "data/usage/UsageStoreFixture.hpp"

#include <gtest/gtest.h>

namespace quenby {
namespace {

using Store = UsageAnalyticsStore;
using Error = UsageAnalyticsStoreError;
using std::chrono::days;

const std::chrono::sys_days kToday{std::chrono::year{2026} / 3 / 7};

UsageDayKey day(int offset) { return UsageDayKey::from(kToday + days{offset}); }

AppMapping mapping(MappingSource source, std::string bundle, std::string name) {
  return {std::move(name), std::move(bundle), FileURL::fromPath("/Applications/A.app"),
          ApplicationResolution::notFound(), source};
}
const AppMapping kMail = mapping(MappingSource::dock(1), "com.apple.mail", "Mail");
const AppMapping kNotes = mapping(MappingSource::letter('N'), "com.apple.Notes", "Notes");

/// A history with one use on each of `days` (offsets from today) and lifetime records.
StoredUsageState history(std::initializer_list<int> offsets) {
  StoredUsageState state;
  state.totals.counts = {5, 6, 7};
  state.apps["com.apple.mail"] = {"Mail", 4, 1};
  for (const int offset : offsets) {
    state.daily[day(offset)].totals.increment(UsageCategory::hud);
    state.appDaily[day(offset)]["com.apple.mail"] = {"Mail", 1, 0};
  }
  return state;
}

TEST(UsageAnalyticsStoreTest, CountsByDayCategoryAndApplicationAndWritesThrough) {
  UsageStoreFixture f;
  auto store = f.make();
  EXPECT_EQ(f.stored(), "<none>"); // nothing to write until something is counted
  store->recordShortcutUse(kMail);
  store->recordShortcutUse(kMail);
  store->recordShortcutUse(kNotes);
  store->recordUse(UsageCategory::hud);
  store->recordSwitchOutcome(StoredAppOutcome::success, kMail);
  store->recordSwitchOutcome(StoredAppOutcome::failure, kMail);
  f.clock.time += days{1};
  store->recordSwitchOutcome(StoredAppOutcome::success, kNotes);
  store->recordSwitchOutcome(StoredAppOutcome::success,
                             mapping(MappingSource::dock(1), "com.apple.mail", "Mail 2"));

  EXPECT_EQ(store->lifetimeTotals().counts, (std::array<std::int64_t, 3>{1, 2, 1}));
  EXPECT_EQ(store->state().daily.at(day(0)).totals.counts, (std::array<std::int64_t, 3>{1, 2, 1}));
  EXPECT_EQ(store->state().apps.at("com.apple.mail"), (StoredAppUsage{"Mail 2", 2, 1}));
  EXPECT_EQ(store->state().appDaily.at(day(0)).at("com.apple.mail"),
            (StoredAppUsage{"Mail", 1, 1}));
  EXPECT_EQ(store->state().appDaily.at(day(1)).size(), 2U);
  // Counting started at the start of the first day with a count, not at the default start.
  EXPECT_EQ(store->state().startedOn,
            StoredUsageState::referenceDateSeconds(std::chrono::sys_days{kToday}));
  EXPECT_EQ(f.document(), store->state());
  EXPECT_EQ(f.make()->state(), store->state());
  EXPECT_TRUE(f.reporter.failures.empty());

  const auto snapshot = store->snapshot();
  ASSERT_EQ(snapshot.last90DayCategoryRows.size(), 270U);
  EXPECT_EQ(snapshot.last90DayCategoryRows.front().day, day(-88));
  EXPECT_EQ(snapshot.last90DayCategoryRows[264],
            (UsageCategoryDayRow{day(0), UsageCategory::hud, 1}));
  EXPECT_EQ(snapshot.last90DayCategoryRows[265].count, 2);
  EXPECT_EQ(snapshot.last90DayCategoryRows.back(),
            (UsageCategoryDayRow{day(1), UsageCategory::optionLetter, 0}));
  const std::vector<UsageAppRow> rows{{"com.apple.mail", "Mail 2", 2, 1},
                                      {"com.apple.Notes", "Notes", 1, 0}};
  EXPECT_EQ(snapshot.appRows(UsageAnalyticsRange::last90Days), rows);
  EXPECT_EQ(snapshot.appRows(UsageAnalyticsRange::allTime), rows);
}

TEST(UsageAnalyticsStoreTest, KeepsOnlyTheNinetyDaysEndingTodayWithoutTouchingLifetimeRecords) {
  UsageStoreFixture f;
  auto seeded = history({-90, -89, 0, 1});
  seeded.daily[UsageDayKey("someday")] = {};
  f.store(seeded.encode());
  auto store = f.make();
  const auto kept = history({-89, 0});
  EXPECT_EQ(store->state(), kept);
  EXPECT_EQ(f.document(), kept);

  // A day later the oldest kept day leaves at the next refresh.
  f.clock.time += days{1};
  store->refresh();
  EXPECT_EQ(store->state(), history({0}));
  EXPECT_EQ(f.document(), history({0}));
  EXPECT_EQ(store->snapshot().appRows(UsageAnalyticsRange::allTime).front().successCount, 4);
  EXPECT_TRUE(f.reporter.failures.empty());
}

TEST(UsageAnalyticsStoreTest, AFailedWriteKeepsMemoryAndStorageAndIsReportedOnce) {
  UsageStoreFixture f;
  f.store(history({-89, 0}).encode());
  auto store = f.make();
  f.clock.time += days{1}; // the next record would also prune day −89
  const auto before = store->state();
  const auto storedBefore = f.stored();
  f.defaults.droppedKeys.insert(std::string(Store::kStorageKey));

  store->recordShortcutUse(kMail);
  store->recordSwitchOutcome(StoredAppOutcome::success, kNotes);
  EXPECT_EQ(store->state(), before);
  EXPECT_EQ(f.stored(), storedBefore);
  ASSERT_EQ(f.reporter.failures.size(), 2U); // once per failed save
  EXPECT_EQ(
      f.reporter.failures[0],
      (ConfigurationFailure{"usageAnalytics.persistence.save", "Usage Analytics Could Not Be Saved",
                            "Quenby kept the last saved usage analytics state in memory and "
                            "on disk. Fix the underlying storage problem, then try the "
                            "action again."}));
  const Error saveFailed = Error::PersistenceFailed{UsageAnalyticsPersistenceOperation::save,
                                                    {std::string(Store::kStorageKey)}};
  EXPECT_EQ(store->snapshot().persistenceError, saveFailed);
  EXPECT_EQ(saveFailed.localizedDescription(f.localizer),
            "Usage analytics save failed: The user defaults did not keep the data written under "
            "usageAnalytics.v1.");

  store->reset();
  EXPECT_EQ(store->state(), before);
  EXPECT_EQ(f.reporter.failures.back().id, "usageAnalytics.persistence.reset");

  // A refresh that cannot save keeps the old day; once storage works again all is well.
  store->refresh();
  EXPECT_EQ(store->state(), before);
  EXPECT_EQ(f.reporter.failures.back().title, "Usage Analytics Cleanup Could Not Be Saved");
  f.defaults.droppedKeys.clear();
  store->recordShortcutUse(kMail);
  EXPECT_EQ(store->state().daily.count(day(-89)), 0U);
  EXPECT_EQ(store->lastError(), std::nullopt);
  EXPECT_EQ(f.document(), store->state());
}

TEST(UsageAnalyticsStoreTest, ResetStartsAgainFromTheDefaultStartDate) {
  UsageStoreFixture f;
  auto store = f.make();
  f.clock.time += days{3};
  store->recordShortcutUse(kMail);
  store->reset();
  StoredUsageState empty;
  empty.startedOn = StoredUsageState::referenceDateSeconds(BasePlatform::kInertStart);
  EXPECT_EQ(store->state(), empty);
  EXPECT_EQ(f.document(), empty);
}

TEST(UsageAnalyticsStoreTest, WithoutACalendarDayNothingIsCountedOrPruned) {
  struct NoDays final : UsageCalendar {
    std::optional<WallTime> startOfDay(WallTime) const override { return std::nullopt; }
    std::optional<WallTime> addingDays(std::int64_t, WallTime t) const override { return t; }
    std::optional<std::chrono::year_month_day> day(WallTime) const override { return {}; }
  } noDays;
  UsageStoreFixture f;
  f.store(history({-200}).encode());
  auto store = std::make_unique<Store>(
      Store::Dependencies{f.defaults, noDays, f.clock, f.localizer, f.logger, f.reporter});
  store->recordShortcutUse(kMail);
  store->refresh();
  EXPECT_EQ(store->state(), history({-200}));
  EXPECT_TRUE(f.defaults.writes.empty());
  EXPECT_EQ(f.logger.lines.back(), "Could not derive the current local calendar day.");
  EXPECT_TRUE(store->snapshot().last90DayCategoryRows.empty());
}

TEST(UsageAnalyticsStoreTest, SetsUnreadableAndNewerDataAsideUnderAFreshBackupKey) {
  struct Case {
    PropertyListValue payload;
    std::string id;
    std::string message;
    std::string description;
  };
  const std::string corruptMessage =
      "Quenby reset unreadable usage analytics data to a safe empty state and kept running. You "
      "can continue using Quenby; the Usage tab will rebuild totals from new activity.";
  const std::string key = "usageAnalytics.v1.corrupt.1772874000000." + UsageStoreFixture::uuid(1);
  const auto data = [](std::string_view text) {
    return PropertyListValue(PropertyListValue::Data(text.begin(), text.end()));
  };
  const std::vector<Case> cases{
      {data("{\"version\":1,"), "usageAnalytics.persistence.corrupt", corruptMessage,
       "Usage analytics data was unreadable, quarantined under " + key},
      {"not data", "usageAnalytics.persistence.corrupt", corruptMessage,
       "Usage analytics data was unreadable, quarantined under " + key},
      {data("{\"version\":7,\"totals\":[]}"), "usageAnalytics.persistence.unsupported-version",
       "Quenby found usage analytics data from a newer unsupported format, reset it to a safe "
       "empty state, and kept running. Update Quenby if you expected to keep that history; the "
       "Usage tab will rebuild totals from new activity.",
       "Usage analytics data used unsupported version 7, was quarantined under " + key}};
  for (const auto& c : cases) {
    UsageStoreFixture f;
    f.defaults.preset(Store::kStorageKey, c.payload);
    auto store = f.make();
    EXPECT_EQ(f.defaults.object(key), c.payload);
    EXPECT_EQ(f.document(), store->state());
    EXPECT_EQ(store->lifetimeTotals(), UsageTotals{});
    ASSERT_EQ(f.reporter.failures.size(), 1U);
    EXPECT_EQ(f.reporter.failures[0],
              (ConfigurationFailure{c.id, "Usage Analytics Were Reset", c.message}));
    EXPECT_EQ(store->lastError()->localizedDescription(f.localizer), c.description);
  }

  // Two recoveries in the same millisecond still keep both payloads.
  UsageStoreFixture f;
  f.store("first");
  f.make();
  f.store("second");
  f.make();
  ASSERT_EQ(f.backupKeys().size(), 2U);
  EXPECT_EQ(f.stored(f.backupKeys()[0]), "first");
  EXPECT_EQ(f.stored(f.backupKeys()[1]), "second");
}

TEST(UsageAnalyticsStoreTest, DataThatCannotBeSetAsideIsNeverOverwritten) {
  UsageStoreFixture f;
  const std::string firstKey =
      "usageAnalytics.v1.corrupt.1772874000000." + UsageStoreFixture::uuid(1);
  f.defaults.droppedKeys.insert(firstKey);
  f.store("garbage");
  auto store = f.make();
  ASSERT_EQ(f.reporter.failures.size(), 1U);
  EXPECT_EQ(f.reporter.failures[0],
            (ConfigurationFailure{
                "usageAnalytics.persistence.corrupt-recovery." + firstKey,
                "Usage Analytics Could Not Be Recovered",
                "Quenby could not quarantine unreadable usage analytics data automatically. Fix "
                "the underlying storage problem, then relaunch Quenby or reset usage analytics. "
                "The user defaults did not keep the data written under " +
                    firstKey + "."}));
  EXPECT_EQ(f.stored(), "garbage");

  // The next save first makes the copy, under a key of its own.
  store->recordShortcutUse(kMail);
  EXPECT_EQ(f.stored(f.backupKeys().at(0)), "garbage");
  EXPECT_EQ(f.document().totals[UsageCategory::optionDigit], 1);

  // A newer document whose backup took but whose replacement did not.
  UsageStoreFixture g;
  g.store("{\"version\":2}");
  g.defaults.droppedKeys.insert(std::string(Store::kStorageKey));
  store = g.make();
  const auto* failed = store->lastError()->as<Error::UnsupportedVersionRecoveryFailed>();
  ASSERT_NE(failed, nullptr);
  EXPECT_EQ(failed->stage, UsageAnalyticsQuarantineStage::reset);
  EXPECT_EQ(g.stored(failed->backupKey), "{\"version\":2}");
  EXPECT_EQ(g.reporter.failures[0].message.substr(0, 82),
            "Quenby found unsupported usage analytics format version 2 but could not quarantine");
  EXPECT_EQ(store->lastError()->localizedDescription(g.localizer),
            "Usage analytics data used unsupported version 2 and could not be quarantined under " +
                failed->backupKey +
                ": The user defaults did not keep the data written under usageAnalytics.v1.");
}

} // namespace
} // namespace quenby
