#include "ui/settings/usage/UsageChartGeometry.hpp"

#include <array>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>

namespace quenby {
namespace {

using ::testing::ElementsAre;
using ::testing::Field;
using ::testing::IsEmpty;

/// One row per category for each day, as the snapshot has them; `counts` is hud, digit, letter.
std::vector<UsageCategoryDayRow>
rows(const std::vector<std::pair<std::string, std::array<std::int64_t, 3>>>& days) {
  std::vector<UsageCategoryDayRow> result;
  for (const auto& [day, counts] : days) {
    for (const auto category : kUsageCategories) {
      result.push_back({UsageDayKey(day), category, counts[static_cast<std::size_t>(category)]});
    }
  }
  return result;
}

std::vector<std::int64_t> tickValues(const UsageChartGeometry& chart) {
  std::vector<std::int64_t> values;
  for (const auto& tick : chart.ticks) {
    values.push_back(tick.value);
  }
  return values;
}

TEST(UsageChartGeometryTest, ScaleReachesTheBusiestDayInOneTwoFiveSteps) {
  EXPECT_EQ(UsageChartGeometry::niceStep(1), 1);
  EXPECT_EQ(UsageChartGeometry::niceStep(3), 5);
  EXPECT_EQ(UsageChartGeometry::niceStep(6), 10);
  EXPECT_EQ(UsageChartGeometry::niceStep(11), 20);
  EXPECT_EQ(UsageChartGeometry::niceStep(4'000'000'000'000'000'001), 5'000'000'000'000'000'000);

  EnglishLocalizer localizer;
  const Size plot{100, 200};
  const auto small = UsageChartGeometry::make(rows({{"2026-03-07", {0, 1, 0}}}), plot, localizer);
  EXPECT_THAT(tickValues(small), ElementsAre(0, 1));
  const auto seven = UsageChartGeometry::make(rows({{"2026-03-07", {3, 4, 0}}}), plot, localizer);
  EXPECT_THAT(tickValues(seven), ElementsAre(0, 2, 4, 6, 8));
  EXPECT_EQ(seven.scaleMaximum, 8);
  EXPECT_DOUBLE_EQ(seven.ticks.front().y, 200);
  EXPECT_DOUBLE_EQ(seven.ticks.back().y, 0);
  EXPECT_EQ(seven.ticks[2].label, "4");
  const auto exact = UsageChartGeometry::make(rows({{"2026-03-07", {100, 0, 0}}}), plot, localizer);
  EXPECT_THAT(tickValues(exact), ElementsAre(0, 50, 100));

  // Counts a corrupt document could hold still give a scale, never an overflow.
  constexpr auto huge = std::numeric_limits<std::int64_t>::max();
  const auto saturated =
      UsageChartGeometry::make(rows({{"2026-03-07", {huge, huge, 0}}}), plot, localizer);
  EXPECT_EQ(saturated.scaleMaximum, huge);
  EXPECT_GE(saturated.ticks.size(), 2U);
  EXPECT_LE(saturated.ticks.back().value, huge);
}

TEST(UsageChartGeometryTest, BarsStackTheirCategoriesFromTheBaselineAndKeepEveryDaysSlot) {
  EnglishLocalizer localizer;
  const auto chart = UsageChartGeometry::make(
      rows({{"2026-03-07", {1, 2, 1}}, {"2026-03-08", {0, 0, 0}}, {"2026-03-09", {0, 0, 4}}}),
      {300, 100}, localizer);

  ASSERT_EQ(chart.bars.size(), 3U);
  EXPECT_FALSE(chart.isEmpty);
  EXPECT_EQ(chart.scaleMaximum, 4);
  const auto& first = chart.bars[0];
  EXPECT_EQ(first.total, 4);
  ASSERT_EQ(first.segments.size(), 3U);
  // Each slot is 100 points wide; the bar fills three quarters of it, centred.
  EXPECT_EQ(first.segments[0].category, UsageCategory::hud);
  EXPECT_EQ(first.segments[0].frame, (Rect{12.5, 75, 75, 25}));
  EXPECT_EQ(first.segments[1].category, UsageCategory::optionDigit);
  EXPECT_EQ(first.segments[1].frame, (Rect{12.5, 25, 75, 50}));
  EXPECT_EQ(first.segments[2].category, UsageCategory::optionLetter);
  EXPECT_EQ(first.segments[2].frame, (Rect{12.5, 0, 75, 25}));

  EXPECT_THAT(chart.bars[1].segments, IsEmpty());
  EXPECT_EQ(chart.bars[1].day, UsageDayKey("2026-03-08"));
  ASSERT_EQ(chart.bars[2].segments.size(), 1U);
  EXPECT_EQ(chart.bars[2].segments[0].frame, (Rect{212.5, 0, 75, 100}));

  EXPECT_THAT(chart.legend, ElementsAre(Field(&UsageChartLegendEntry::title, "HUD"),
                                        Field(&UsageChartLegendEntry::title, "Digit shortcuts"),
                                        Field(&UsageChartLegendEntry::title, "Letter shortcuts")));
}

TEST(UsageChartGeometryTest, NoSwitchesShowTheEmptyStateWithItsAxisDates) {
  EnglishLocalizer localizer;
  const auto chart = UsageChartGeometry::make(
      rows({{"2026-08-30", {0, 0, 0}}, {"2026-08-31", {0, 0, 0}}, {"2026-09-01", {0, 0, 0}}}),
      {30, 10}, localizer);
  EXPECT_TRUE(chart.isEmpty);
  EXPECT_EQ(chart.emptyText, "No switches in the last 90 days");
  EXPECT_THAT(chart.ticks, IsEmpty());
  EXPECT_EQ(chart.bars.size(), 3U);
  ASSERT_EQ(chart.dateLabels.size(), 1U);
  EXPECT_EQ(chart.dateLabels[0].text, "Sep 1");
  EXPECT_DOUBLE_EQ(chart.dateLabels[0].x, 25);

  EXPECT_TRUE(UsageChartGeometry::make({}, {30, 10}, localizer).isEmpty);
}

TEST(UsageChartGeometryTest, DatesMarkEachMonthStartOrElseTheFirstDay) {
  EnglishLocalizer localizer;
  std::vector<std::pair<std::string, std::array<std::int64_t, 3>>> days;
  for (int day = 20; day <= 31; ++day) {
    days.push_back({"2026-01-" + std::to_string(day), {0, 1, 0}});
  }
  days.push_back({"2026-02-01", {0, 0, 0}});
  days.push_back({"2026-02-02", {0, 0, 0}});
  const auto chart = UsageChartGeometry::make(rows(days), {140, 10}, localizer);
  ASSERT_EQ(chart.dateLabels.size(), 1U);
  EXPECT_EQ(chart.dateLabels[0].text, "Feb 1");
  EXPECT_DOUBLE_EQ(chart.dateLabels[0].x, 125);

  const auto withinMonth = UsageChartGeometry::make(
      rows({{"2026-12-24", {1, 0, 0}}, {"2026-12-25", {0, 0, 0}}}), {20, 10}, localizer);
  ASSERT_EQ(withinMonth.dateLabels.size(), 1U);
  EXPECT_EQ(withinMonth.dateLabels[0].text, "Dec 24");
  EXPECT_DOUBLE_EQ(withinMonth.dateLabels[0].x, 5);

  // A stored key that is no date labels nothing rather than inventing one.
  EXPECT_THAT(
      UsageChartGeometry::make(rows({{"2026-13-01", {1, 0, 0}}}), {20, 10}, localizer).dateLabels,
      IsEmpty());
}

} // namespace
} // namespace quenby
