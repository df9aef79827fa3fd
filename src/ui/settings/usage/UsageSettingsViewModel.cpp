#include "ui/settings/usage/UsageSettingsViewModel.hpp"

#include "base/StringFormatter.hpp"
#include "ui/settings/usage/UsageSettingsTexts.hpp"

#include <limits>

namespace quenby {
namespace {

std::int64_t saturatedSum(std::int64_t a, std::int64_t b) {
  return b > std::numeric_limits<std::int64_t>::max() - a ? std::numeric_limits<std::int64_t>::max()
                                                          : a + b;
}

} // namespace

UsageSettingsViewModel::UsageSettingsViewModel(UsageAnalyticsStore& store,
                                               const Localizer& localizer)
    : store_(store), localizer_(localizer) {
  takeSnapshot();
}

void UsageSettingsViewModel::refresh() {
  store_.refresh();
  takeSnapshot();
  observers_.notify();
}

void UsageSettingsViewModel::takeSnapshot() {
  snapshot_ = store_.snapshot();
  totalsLines_ = totalsLines(snapshot_, localizer_);
}

std::vector<std::string> UsageSettingsViewModel::totalsLines(const UsageAnalyticsSnapshot& snapshot,
                                                             const Localizer& localizer) {
  const UsageTotals& totals = snapshot.lifetimeTotals;
  std::int64_t total = 0;
  for (const auto count : totals.counts) {
    total = saturatedSum(total, count);
  }
  std::vector<std::string> lines;
  lines.push_back(formatLocalized(localizer.localized(kUsageTotalSwitchesText),
                                  {static_cast<long long>(total)}));
  const auto categoryFormat = localizer.localized(kUsageCategoryTotalText);
  for (const auto category : kUsageCategories) {
    const auto title = UsageChartGeometry::categoryTitle(category, localizer);
    lines.push_back(formatLocalized(
        categoryFormat, {std::string_view(title), static_cast<long long>(totals[category])}));
  }
  // Outcomes are kept per application only; their lifetime sums are the all-time rows'.
  std::int64_t opened = 0;
  std::int64_t failed = 0;
  for (const auto& row : snapshot.allTimeAppRows) {
    opened = saturatedSum(opened, row.successCount);
    failed = saturatedSum(failed, row.failureCount);
  }
  lines.push_back(
      formatLocalized(localizer.localized(kUsageOutcomeTotalsText),
                      {static_cast<long long>(opened), static_cast<long long>(failed)}));
  return lines;
}

std::string UsageSettingsViewModel::chartTitle() const {
  return localizer_.localized(kUsageChartTitle);
}

void UsageSettingsViewModel::setRange(UsageAnalyticsRange range) {
  if (range == range_) {
    return;
  }
  range_ = range;
  observers_.notify();
}

std::vector<std::string> UsageSettingsViewModel::rangeTitles() const {
  return {localizer_.localized(kUsageRangeLast90DaysTitle),
          localizer_.localized(kUsageRangeAllTimeTitle)};
}

std::vector<std::string> UsageSettingsViewModel::columnTitles() const {
  return {localizer_.localized(kUsageApplicationColumnTitle),
          localizer_.localized(kUsageOpenedColumnTitle),
          localizer_.localized(kUsageFailedColumnTitle)};
}

std::optional<std::string> UsageSettingsViewModel::errorText() const {
  if (!snapshot_.persistenceError) {
    return std::nullopt;
  }
  return snapshot_.persistenceError->localizedDescription(localizer_);
}

std::string UsageSettingsViewModel::resetButtonTitle() const {
  return localizer_.localized(kUsageResetButtonTitle);
}

void UsageSettingsViewModel::requestReset() {
  pendingReset_ =
      UsageResetConfirmation{.message = localizer_.localized(kUsageResetConfirmMessage),
                             .informativeText = localizer_.localized(kUsageResetConfirmInformative),
                             .confirmTitle = localizer_.localized(kUsageResetConfirmButton),
                             .cancelTitle = localizer_.localized(kUsageResetCancelButton)};
  observers_.notify();
}

void UsageSettingsViewModel::confirmReset() {
  // An answer to an alert that is no longer asked (a second click, a stale window) deletes nothing.
  if (!pendingReset_) {
    return;
  }
  pendingReset_.reset();
  store_.reset();
  takeSnapshot();
  observers_.notify();
}

void UsageSettingsViewModel::cancelReset() {
  if (!pendingReset_) {
    return;
  }
  pendingReset_.reset();
  observers_.notify();
}

} // namespace quenby
