#include "data/usage/UsageAnalyticsSnapshot.hpp"

#include <algorithm>
#include <limits>
#include <map>
#include <tuple>
#include <utility>

namespace quenby {
namespace {

bool moreUsed(const UsageAppRow& a, const UsageAppRow& b) {
  // Compared as unsigned sums so that two saturated counts cannot overflow.
  const auto total = [](const UsageAppRow& row) {
    return static_cast<std::uint64_t>(row.successCount) +
           static_cast<std::uint64_t>(row.failureCount);
  };
  if (total(a) != total(b)) {
    return total(a) > total(b);
  }
  return std::tie(a.displayName, a.bundleIdentifier) < std::tie(b.displayName, b.bundleIdentifier);
}

std::vector<UsageAppRow> sortedRows(std::map<std::string, UsageAppRow, std::less<>> rows) {
  std::vector<UsageAppRow> sorted;
  sorted.reserve(rows.size());
  for (auto& [bundleIdentifier, row] : rows) {
    sorted.push_back(std::move(row));
  }
  std::sort(sorted.begin(), sorted.end(), moreUsed);
  return sorted;
}

void add(std::int64_t& count, std::int64_t more) {
  count = more > std::numeric_limits<std::int64_t>::max() - count
              ? std::numeric_limits<std::int64_t>::max()
              : count + more;
}

} // namespace

UsageAnalyticsSnapshot
UsageAnalyticsSnapshot::make(const StoredUsageState& state,
                             const std::vector<UsageDayKey>& windowDays,
                             std::optional<UsageAnalyticsStoreError> persistenceError) {
  UsageAnalyticsSnapshot snapshot{.lifetimeTotals = state.totals,
                                  .last90DayCategoryRows = {},
                                  .last90DayAppRows = {},
                                  .allTimeAppRows = {},
                                  .persistenceError = std::move(persistenceError)};
  std::map<std::string, UsageAppRow, std::less<>> rows;
  snapshot.last90DayCategoryRows.reserve(windowDays.size() * kUsageCategories.size());
  for (const auto& day : windowDays) {
    const auto entry = state.daily.find(day);
    for (const auto category : kUsageCategories) {
      snapshot.last90DayCategoryRows.push_back(
          {day, category, entry == state.daily.end() ? 0 : entry->second.totals[category]});
    }
    const auto apps = state.appDaily.find(day);
    if (apps == state.appDaily.end()) {
      continue;
    }
    for (const auto& [bundleIdentifier, app] : apps->second) {
      auto& row = rows[bundleIdentifier];
      row.bundleIdentifier = bundleIdentifier;
      row.displayName = app.displayName; // the latest day's name wins
      add(row.successCount, app.successCount);
      add(row.failureCount, app.failureCount);
    }
  }
  snapshot.last90DayAppRows = sortedRows(std::move(rows));

  rows.clear();
  for (const auto& [bundleIdentifier, app] : state.apps) {
    rows[bundleIdentifier] = {bundleIdentifier, app.displayName, app.successCount,
                              app.failureCount};
  }
  snapshot.allTimeAppRows = sortedRows(std::move(rows));
  return snapshot;
}

} // namespace quenby
