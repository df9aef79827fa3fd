#pragma once

#include "data/usage/StoredAppOutcome.hpp"
#include "shortcuts/mapping/AppMapping.hpp"

namespace quenby {

/// Where app switching counts the switches it performs.
class UsageAnalyticsRecording {
public:
  virtual ~UsageAnalyticsRecording() = default;
  /// A switch request to `mapping` was accepted: counted under the digit category for a Dock
  /// position, the letter category for a letter.
  virtual void recordShortcutUse(const AppMapping& mapping) = 0;
  /// The switch to `mapping`'s application ended with `outcome`.
  virtual void recordSwitchOutcome(StoredAppOutcome outcome, const AppMapping& mapping) = 0;
};

/// Counts nothing: for graphs and tests that want no analytics.
class NoOpUsageAnalyticsRecorder final : public UsageAnalyticsRecording {
public:
  void recordShortcutUse(const AppMapping&) override {}
  void recordSwitchOutcome(StoredAppOutcome, const AppMapping&) override {}
};

} // namespace quenby
