#pragma once

#include "base/Localizer.hpp"

#include <array>

namespace quenby {

inline constexpr LocalizedText kUsageCategoryHUDTitle{
    "settings.usage.category.hud", "HUD",
    "Usage page: switches made by clicking or pressing a key in the keyboard HUD; a chart legend "
    "entry and a totals line."};
inline constexpr LocalizedText kUsageCategoryDigitTitle{
    "settings.usage.category.digit", "Digit shortcuts",
    "Usage page: switches made with the modifier and a digit (Dock position); a chart legend "
    "entry and a totals line."};
inline constexpr LocalizedText kUsageCategoryLetterTitle{
    "settings.usage.category.letter", "Letter shortcuts",
    "Usage page: switches made with the modifier and an assigned letter; a chart legend entry and "
    "a totals line."};

inline constexpr LocalizedText kUsageTotalSwitchesText{
    "settings.usage.totals.total", "Total switches: %lld",
    "Usage page, first totals line. %lld is the number of switches ever counted."};
inline constexpr LocalizedText kUsageCategoryTotalText{
    "settings.usage.totals.category", "%1$@: %2$lld",
    "Usage page totals line for one way of switching. %1$@ is its name (HUD, Digit shortcuts, "
    "Letter shortcuts), %2$lld its count."};
inline constexpr LocalizedText kUsageOutcomeTotalsText{
    "settings.usage.totals.outcomes", "Opened: %1$lld, failed: %2$lld",
    "Usage page totals line. %1$lld is how many switches opened their application, %2$lld how "
    "many could not."};

inline constexpr LocalizedText kUsageChartEmptyText{
    "settings.usage.chart.empty", "No switches in the last 90 days",
    "Shown in place of the daily chart while no switch was counted in the last 90 days."};
inline constexpr LocalizedText kUsageChartDateText{
    "settings.usage.chart.date", "%1$@ %2$lld",
    "A date under the daily chart. %1$@ is the abbreviated month name, %2$lld the day of the "
    "month (\"Sep 1\")."};
inline constexpr LocalizedText kUsageJanuaryText{
    "settings.usage.month.1", "Jan", "Abbreviated name of January under the usage chart."};
inline constexpr LocalizedText kUsageFebruaryText{
    "settings.usage.month.2", "Feb", "Abbreviated name of February under the usage chart."};
inline constexpr LocalizedText kUsageMarchText{"settings.usage.month.3", "Mar",
                                               "Abbreviated name of March under the usage chart."};
inline constexpr LocalizedText kUsageAprilText{"settings.usage.month.4", "Apr",
                                               "Abbreviated name of April under the usage chart."};
inline constexpr LocalizedText kUsageMayText{"settings.usage.month.5", "May",
                                             "Abbreviated name of May under the usage chart."};
inline constexpr LocalizedText kUsageJuneText{"settings.usage.month.6", "Jun",
                                              "Abbreviated name of June under the usage chart."};
inline constexpr LocalizedText kUsageJulyText{"settings.usage.month.7", "Jul",
                                              "Abbreviated name of July under the usage chart."};
inline constexpr LocalizedText kUsageAugustText{
    "settings.usage.month.8", "Aug", "Abbreviated name of August under the usage chart."};
inline constexpr LocalizedText kUsageSeptemberText{
    "settings.usage.month.9", "Sep", "Abbreviated name of September under the usage chart."};
inline constexpr LocalizedText kUsageOctoberText{
    "settings.usage.month.10", "Oct", "Abbreviated name of October under the usage chart."};
inline constexpr LocalizedText kUsageNovemberText{
    "settings.usage.month.11", "Nov", "Abbreviated name of November under the usage chart."};
inline constexpr LocalizedText kUsageDecemberText{
    "settings.usage.month.12", "Dec", "Abbreviated name of December under the usage chart."};
/// By month number less one.
inline constexpr std::array<const LocalizedText*, 12> kUsageMonthAbbreviations{
    &kUsageJanuaryText,   &kUsageFebruaryText, &kUsageMarchText,    &kUsageAprilText,
    &kUsageMayText,       &kUsageJuneText,     &kUsageJulyText,     &kUsageAugustText,
    &kUsageSeptemberText, &kUsageOctoberText,  &kUsageNovemberText, &kUsageDecemberText,
};
inline constexpr LocalizedText kUsageChartTitle{
    "settings.usage.chart.title", "Switches per day, last 90 days",
    "Title of the Usage page's daily chart, also its accessibility description."};

inline constexpr LocalizedText kUsageRangeLast90DaysTitle{
    "settings.usage.range.last90Days", "Last 90 Days",
    "Usage page: choice that lists the applications switched to in the last 90 days."};
inline constexpr LocalizedText kUsageRangeAllTimeTitle{
    "settings.usage.range.allTime", "All Time",
    "Usage page: choice that lists the applications switched to since counting started."};
inline constexpr LocalizedText kUsageApplicationColumnTitle{
    "settings.usage.column.application", "Application",
    "Usage page: heading of the table column with the applications' names."};
inline constexpr LocalizedText kUsageOpenedColumnTitle{
    "settings.usage.column.opened", "Opened",
    "Usage page: heading of the table column counting switches that opened the application."};
inline constexpr LocalizedText kUsageFailedColumnTitle{
    "settings.usage.column.failed", "Failed",
    "Usage page: heading of the table column counting switches that could not open the "
    "application."};

inline constexpr LocalizedText kUsageResetButtonTitle{
    "settings.usage.reset", "Reset Usage…",
    "Usage page button that asks before deleting every usage count."};
inline constexpr LocalizedText kUsageResetConfirmMessage{
    "settings.usage.reset.message", "Reset usage analytics?",
    "Title of the alert asking before every usage count is deleted."};
inline constexpr LocalizedText kUsageResetConfirmInformative{
    "settings.usage.reset.informative",
    "All totals, the daily history and the application counts will be deleted. This cannot be "
    "undone.",
    "Body of the alert asking before every usage count is deleted."};
inline constexpr LocalizedText kUsageResetConfirmButton{
    "settings.usage.reset.confirm", "Reset",
    "Button of the reset alert that deletes every usage count."};
inline constexpr LocalizedText kUsageResetCancelButton{
    "settings.usage.reset.cancel", "Cancel",
    "Button of the reset alert that keeps the usage counts."};

} // namespace quenby
