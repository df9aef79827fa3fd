#pragma once

#include "data/usage/StoredAppOutcome.hpp"
#include "shortcuts/mapping/AppMapping.hpp"

namespace quenby {

/// Where shortcut uses and their outcomes are counted.
class UsageAnalyticsRecording {
public:
  virtual ~UsageAnalyticsRecording() = default;
  /// A shortcut was accepted; the category follows from the mapping's source.
  virtual void recordShortcutUse(const AppMapping& mapping) = 0;
  /// The switch that `recordShortcutUse` announced has ended.
  virtual void recordSwitchOutcome(const StoredAppOutcome& outcome, const AppMapping& mapping) = 0;
};

/// Counts nothing.
class NoOpUsageAnalyticsRecorder final : public UsageAnalyticsRecording {
public:
  void recordShortcutUse(const AppMapping&) override {}
  void recordSwitchOutcome(const StoredAppOutcome&, const AppMapping&) override {}
};

} // namespace quenby
