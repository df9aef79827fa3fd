#pragma once

#include "app/ConfigurationFailureReporting.hpp"
#include "base/BasePlatform.hpp"
#include "data/AppPreferencesStore.hpp"
#include "data/DataPlatform.hpp"
#include "data/usage/UsageAnalyticsStore.hpp"

namespace quenby {

/// The preferences and usage data. `base`, `platform` and `reporter` must outlive it.
class DataAssembly {
public:
  DataAssembly(const BasePlatform& base, const DataPlatform& platform,
               ConfigurationFailureReporting& reporter)
      : preferences_(*base.userDefaults, AppPreferencesStore::loggingReporter(*base.logger)),
        usage_({.defaults = *base.userDefaults,
                .calendar = *platform.calendar,
                .clock = *base.wallClock,
                .localizer = *base.localizer,
                .logger = *base.logger,
                .reporter = reporter}) {}
  DataAssembly(const DataAssembly&) = delete;
  DataAssembly& operator=(const DataAssembly&) = delete;

  [[nodiscard]] AppPreferencesStore& preferences() { return preferences_; }
  [[nodiscard]] UsageAnalyticsStore& usage() { return usage_; }

private:
  AppPreferencesStore preferences_;
  UsageAnalyticsStore usage_;
};

} // namespace quenby
