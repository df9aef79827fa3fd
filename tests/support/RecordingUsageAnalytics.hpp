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
  void recordSwitchOutcome(StoredAppOutcome outcome, const AppMapping& mapping) override {
    lines.push_back((outcome == StoredAppOutcome::success ? "success " : "failure ") +
                    mapping.id());
  }

  std::vector<std::string> lines;
};

} // namespace quenby
