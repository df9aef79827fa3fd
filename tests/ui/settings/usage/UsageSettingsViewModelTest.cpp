#include "ui/settings/usage/UsageSettingsViewModel.hpp"

#include "data/usage/UsageStoreFixture.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quenby {
namespace {

using ::testing::ElementsAre;
using ::testing::Optional;

AppMapping mapping(MappingSource source, std::string bundle, std::string name) {
  return {std::move(name), std::move(bundle), FileURL::fromPath("/Applications/A.app"),
          ApplicationResolution::notFound(), source};
}

struct UsagePage {
  UsageStoreFixture fixture;
  std::unique_ptr<UsageAnalyticsStore> store = fixture.make();
  UsageSettingsViewModel model{*store, fixture.localizer};
  int changes = 0;
  ObservationToken observation = model.observe([this] { ++changes; });

  UsagePage() {
    const auto mail = mapping(MappingSource::dock(1), "com.apple.mail", "Mail");
    const auto notes = mapping(MappingSource::letter('N'), "com.apple.Notes", "Notes");
    // Two Notes successes long before the window: all time only.
    fixture.clock.time -= std::chrono::days{120};
    store->recordSwitchOutcome(StoredAppOutcome::success, notes);
    store->recordSwitchOutcome(StoredAppOutcome::success, notes);
    fixture.clock.time += std::chrono::days{120};
    store->recordShortcutUse(mail);
    store->recordSwitchOutcome(StoredAppOutcome::success, mail);
    store->recordShortcutUse(notes);
    store->recordSwitchOutcome(StoredAppOutcome::failure, notes);
    model.refresh();
  }
};

TEST(UsageSettingsViewModelTest, ShowsTotalsAndTheChosenRangesApplications) {
  UsagePage page;
  EXPECT_THAT(page.model.totalsLines(),
              ElementsAre("Total switches: 2", "HUD: 0", "Digit shortcuts: 1",
                          "Letter shortcuts: 1", "Opened: 3, failed: 1"));
  EXPECT_THAT(page.model.appRows(), ElementsAre(UsageAppRow{"com.apple.mail", "Mail", 1, 0},
                                                UsageAppRow{"com.apple.Notes", "Notes", 0, 1}));

  const int before = page.changes;
  page.model.setRange(UsageAnalyticsRange::allTime);
  page.model.setRange(UsageAnalyticsRange::allTime);
  EXPECT_EQ(page.changes, before + 1);
  EXPECT_THAT(page.model.appRows(), ElementsAre(UsageAppRow{"com.apple.Notes", "Notes", 2, 1},
                                                UsageAppRow{"com.apple.mail", "Mail", 1, 0}));
  EXPECT_FALSE(page.model.chartGeometry({90, 50}).isEmpty);
  EXPECT_EQ(page.model.errorText(), std::nullopt);
}

TEST(UsageSettingsViewModelTest, ResetHappensOnlyAfterTheUserConfirms) {
  UsagePage page;
  page.model.confirmReset(); // no question was asked: nothing to confirm
  EXPECT_EQ(page.store->lifetimeTotals()[UsageCategory::optionDigit], 1);

  page.model.requestReset();
  EXPECT_THAT(page.model.pendingResetConfirmation(),
              Optional(UsageResetConfirmation{
                  "Reset usage analytics?",
                  "All totals, the daily history and the application counts will be deleted. "
                  "This cannot be undone.",
                  "Reset", "Cancel"}));
  EXPECT_EQ(page.store->lifetimeTotals()[UsageCategory::optionDigit], 1);
  page.model.cancelReset();
  EXPECT_EQ(page.model.pendingResetConfirmation(), std::nullopt);
  page.model.confirmReset();
  EXPECT_EQ(page.store->lifetimeTotals()[UsageCategory::optionDigit], 1);

  page.model.requestReset();
  const int before = page.changes;
  page.model.confirmReset();
  EXPECT_EQ(page.changes, before + 1);
  EXPECT_EQ(page.model.pendingResetConfirmation(), std::nullopt);
  EXPECT_TRUE(page.store->lifetimeTotals().isEmpty());
  EXPECT_EQ(page.model.totalsLines().front(), "Total switches: 0");
  EXPECT_TRUE(page.model.appRows().empty());
  EXPECT_TRUE(page.model.chartGeometry({90, 50}).isEmpty);
}

TEST(UsageSettingsViewModelTest, AResetTheDefaultsRefuseIsDescribedAndKeepsTheCounts) {
  UsagePage page;
  page.fixture.defaults.droppedKeys.insert(std::string(UsageAnalyticsStore::kStorageKey));
  page.model.requestReset();
  page.model.confirmReset();
  EXPECT_EQ(page.store->lifetimeTotals()[UsageCategory::optionLetter], 1);
  EXPECT_THAT(page.model.errorText(),
              Optional(std::string("Usage analytics reset failed: The user defaults did not keep "
                                   "the data written under usageAnalytics.v1.")));
}

} // namespace
} // namespace quenby
