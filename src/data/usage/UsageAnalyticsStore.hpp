#pragma once

#include "app/ConfigurationFailureReporting.hpp"
#include "base/KeyValueStore.hpp"
#include "base/Localizer.hpp"
#include "base/Logger.hpp"
#include "base/WallClock.hpp"
#include "data/usage/RandomUUID.hpp"
#include "data/usage/StoredUsageState.hpp"
#include "data/usage/UsageAnalyticsRecording.hpp"
#include "data/usage/UsageAnalyticsSnapshot.hpp"
#include "data/usage/UsageAnalyticsStoreError.hpp"
#include "data/usage/UsageCalendar.hpp"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quenby {

/// Counts switches by local day, category and application, keeps 90 days of daily history and
/// lifetime totals, and persists them as one JSON document in the user defaults.
///
/// Every change is written through before it is kept: a write that the defaults do not take
/// leaves memory and storage as they were and reports the failure. Unreadable or newer-format
/// data is never dropped: it is copied byte for byte under a fresh backup key before the main
/// key is reset to an empty document; while that copy cannot be made, no write replaces it.
/// Main thread only; everything in `Dependencies` must outlive the store.
class UsageAnalyticsStore final : public UsageAnalyticsRecording {
public:
  static constexpr std::string_view kStorageKey = "usageAnalytics.v1";
  /// Followed by the milliseconds since 1970, ".", and a UUID.
  static constexpr std::string_view kBackupKeyPrefix = "usageAnalytics.v1.corrupt.";
  static constexpr int kWindowDays = 90;

  struct Dependencies {
    KeyValueStore& defaults;
    const UsageCalendar& calendar;
    const WallClock& clock;
    const Localizer& localizer;
    Logger& logger;
    ConfigurationFailureReporting& reporter;
    /// Makes the UUID of each backup key.
    std::function<std::string()> makeUUID = makeRandomUUID;
    /// When a fresh state says counting started; the clock's time at construction when absent.
    std::optional<WallTime> defaultStartDate = std::nullopt;
  };

  /// Loads, recovering from unreadable data, and prunes.
  explicit UsageAnalyticsStore(Dependencies dependencies);
  UsageAnalyticsStore(const UsageAnalyticsStore&) = delete;
  UsageAnalyticsStore& operator=(const UsageAnalyticsStore&) = delete;

  /// Counts one switch under `category` today.
  void recordUse(UsageCategory category);
  void recordShortcutUse(const AppMapping& mapping) override;
  void recordSwitchOutcome(StoredAppOutcome outcome, const AppMapping& mapping) override;

  /// Drops daily history outside the window ending today and saves that.
  void refresh();
  /// Replaces everything with an empty state, once that is saved.
  void reset();

  [[nodiscard]] UsageAnalyticsSnapshot snapshot() const;
  /// The days of the window that ends on the day starting at `startOfToday`, oldest first and
  /// distinct; a day the calendar cannot produce is missing.
  [[nodiscard]] static std::vector<UsageDayKey> windowDays(const UsageCalendar& calendar,
                                                           WallTime startOfToday);
  [[nodiscard]] const UsageTotals& lifetimeTotals() const { return state_.totals; }
  [[nodiscard]] const StoredUsageState& state() const { return state_; }
  [[nodiscard]] const std::optional<UsageAnalyticsStoreError>& lastError() const {
    return lastError_;
  }

private:
  /// The 90 days ending today, oldest first; a day the calendar cannot produce is missing.
  struct Window {
    WallTime startOfToday;
    UsageDayKey today;
    std::vector<UsageDayKey> days;
    [[nodiscard]] bool contains(const UsageDayKey& day) const;
  };
  class PrunedDays;

  [[nodiscard]] std::optional<Window> window() const;
  [[nodiscard]] StoredUsageState emptyState() const;
  [[nodiscard]] std::string makeBackupKey() const;

  void load();
  void quarantine(const PropertyListValue& payload, std::optional<std::int64_t> version);
  /// Takes history outside `window` out of the state, for the caller to save or put back.
  [[nodiscard]] PrunedDays pruneOutside(const Window& window);
  /// Writes `state` under the main key, first retrying a backup that could not be made.
  [[nodiscard]] std::optional<UsageAnalyticsWriteError> write(const StoredUsageState& state);
  /// After a write that took: a storage problem reported earlier is over.
  void clearPersistenceError();
  void fail(UsageAnalyticsStoreError error);

  KeyValueStore& defaults_;
  const UsageCalendar& calendar_;
  const WallClock& clock_;
  const Localizer& localizer_;
  Logger& logger_;
  ConfigurationFailureReporting& reporter_;
  std::function<std::string()> makeUUID_;
  WallTime defaultStartDate_;
  StoredUsageState state_;
  std::optional<UsageAnalyticsStoreError> lastError_;
  /// Unreadable data still under the main key because its backup copy was not kept.
  std::optional<PropertyListValue> unsavedPayload_;
};

} // namespace quenby
