#pragma once

#include "base/Localizer.hpp"
#include "base/ObservationToken.hpp"
#include "base/ObserverList.hpp"
#include "data/usage/UsageAnalyticsStore.hpp"
#include "ui/settings/usage/UsageChartGeometry.hpp"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace quenby {

/// The texts of the alert that asks before a reset.
struct UsageResetConfirmation {
  std::string message;
  std::string informativeText;
  std::string confirmTitle;
  std::string cancelTitle;
  friend bool operator==(const UsageResetConfirmation&, const UsageResetConfirmation&) = default;
};

/// The Usage page of the Settings window: lifetime totals, the daily chart, the applications of
/// the chosen range, the last storage problem, and a reset that only happens once the user has
/// confirmed it. It shows the snapshot taken at the last `refresh`, which the page asks for each
/// time it appears. Main thread only; the store and localiser must outlive it.
class UsageSettingsViewModel {
public:
  UsageSettingsViewModel(UsageAnalyticsStore& store, const Localizer& localizer);
  UsageSettingsViewModel(const UsageSettingsViewModel&) = delete;
  UsageSettingsViewModel& operator=(const UsageSettingsViewModel&) = delete;

  /// Prunes the store's history to the window ending today and takes a new snapshot.
  void refresh();

  /// "Total switches: 12", one line per category, then the opened and failed counts.
  [[nodiscard]] const std::vector<std::string>& totalsLines() const { return totalsLines_; }
  [[nodiscard]] static std::vector<std::string> totalsLines(const UsageAnalyticsSnapshot& snapshot,
                                                            const Localizer& localizer);
  [[nodiscard]] UsageChartGeometry chartGeometry(Size plotSize) const {
    return UsageChartGeometry::make(snapshot_.last90DayCategoryRows, plotSize, localizer_);
  }
  [[nodiscard]] std::string chartTitle() const;

  [[nodiscard]] UsageAnalyticsRange range() const { return range_; }
  void setRange(UsageAnalyticsRange range);
  /// The segmented control's titles, in the order of `UsageAnalyticsRange`.
  [[nodiscard]] std::vector<std::string> rangeTitles() const;
  [[nodiscard]] const std::vector<UsageAppRow>& appRows() const {
    return snapshot_.appRows(range_);
  }
  /// Application, opened, failed.
  [[nodiscard]] std::vector<std::string> columnTitles() const;

  /// The description of the store's last failure, or absent while all is well.
  [[nodiscard]] std::optional<std::string> errorText() const;

  [[nodiscard]] std::string resetButtonTitle() const;
  /// Asks for a confirmation; nothing is deleted yet.
  void requestReset();
  /// What the page must ask while a reset waits for the user's answer.
  [[nodiscard]] const std::optional<UsageResetConfirmation>& pendingResetConfirmation() const {
    return pendingReset_;
  }
  /// Resets the store if a confirmation is pending, and takes the new snapshot.
  void confirmReset();
  void cancelReset();

  /// `handler` runs after every change of what the page shows, while the token is held.
  [[nodiscard]] ObservationToken observe(std::function<void()> handler) {
    return observers_.add(std::move(handler));
  }

private:
  void takeSnapshot();

  UsageAnalyticsStore& store_;
  const Localizer& localizer_;
  UsageAnalyticsSnapshot snapshot_;
  std::vector<std::string> totalsLines_;
  UsageAnalyticsRange range_ = UsageAnalyticsRange::last90Days;
  std::optional<UsageResetConfirmation> pendingReset_;
  ObserverList<> observers_;
};

} // namespace quenby
