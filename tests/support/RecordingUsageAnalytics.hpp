#pragma once

#include "data/usage/UsageAnalyticsRecording.hpp"

#include <string>
#include <vector>

namespace quenby {

/// Keeps every use and outcome as a line: "use dock:1", "success dock:1", "failure letter:S".
class RecordingUsageAnalytics final : public UsageAnalyticsRecording {
public:
  void recordShortcutUse(const AppMapping& mapping) override {
    lines.push_back("use " + mapping.id());
  }
  void recordSwitchOutcome(const StoredAppOutcome& outcome, const AppMapping& mapping) override {
    const bool success = outcome.result == StoredAppOutcome::Result::success;
    lines.push_back((success ? "success " : "failure ") + mapping.id());
    outcomes.push_back(outcome);
  }

  std::vector<std::string> lines;
  std::vector<StoredAppOutcome> outcomes;
};

} // namespace quenby
