#pragma once

#include "data/usage/StoredUsageState.hpp"
#include "data/usage/UsageAnalyticsStoreError.hpp"
#include "data/usage/UsageCategory.hpp"
#include "data/usage/UsageDayKey.hpp"
#include "data/usage/UsageTotals.hpp"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quenby {

/// Which history a list of application rows covers.
enum class UsageAnalyticsRange { last90Days, allTime };

/// One bar of the daily chart.
struct UsageCategoryDayRow {
  UsageDayKey day;
  UsageCategory category;
  std::int64_t count = 0;
  friend bool operator==(const UsageCategoryDayRow&, const UsageCategoryDayRow&) = default;
};

/// One application's switches over a range.
struct UsageAppRow {
  std::string bundleIdentifier;
  std::string displayName;
  std::int64_t successCount = 0;
  std::int64_t failureCount = 0;
  friend bool operator==(const UsageAppRow&, const UsageAppRow&) = default;
};

/// What the Usage page shows.
struct UsageAnalyticsSnapshot {
  UsageTotals lifetimeTotals;
  /// Every day of the window, oldest first, with one row per category in category order, zeros
  /// included, so that the chart has no gaps.
  std::vector<UsageCategoryDayRow> last90DayCategoryRows;
  /// Most switches first; ties by name, then bundle identifier.
  std::vector<UsageAppRow> last90DayAppRows;
  std::vector<UsageAppRow> allTimeAppRows;
  /// The last failure, for the page to describe.
  std::optional<UsageAnalyticsStoreError> persistenceError;

  /// What `state` says about `windowDays` (sorted and distinct) and all time. Reads nothing
  /// else, so a document can be shown without a store that might write it.
  [[nodiscard]] static UsageAnalyticsSnapshot
  make(const StoredUsageState& state, const std::vector<UsageDayKey>& windowDays,
       std::optional<UsageAnalyticsStoreError> persistenceError = std::nullopt);

  [[nodiscard]] const std::vector<UsageAppRow>& appRows(UsageAnalyticsRange range) const {
    return range == UsageAnalyticsRange::last90Days ? last90DayAppRows : allTimeAppRows;
  }
};

} // namespace quenby
