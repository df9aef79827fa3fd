#pragma once

#include "base/BasePlatform.hpp"
#include "data/AppPreferencesStore.hpp"
#include "data/DataPlatform.hpp"

namespace quenby {

/// The preferences and usage data. `base` must outlive it.
class DataAssembly {
public:
  explicit DataAssembly(const BasePlatform& base)
      : preferences_(*base.userDefaults, AppPreferencesStore::loggingReporter(*base.logger)) {}
  DataAssembly(const DataAssembly&) = delete;
  DataAssembly& operator=(const DataAssembly&) = delete;

  [[nodiscard]] AppPreferencesStore& preferences() { return preferences_; }

private:
  AppPreferencesStore preferences_;
};

} // namespace quenby
