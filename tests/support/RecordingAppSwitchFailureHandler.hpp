#pragma once

#include "shortcuts/switching/AppSwitchFailureHandling.hpp"

#include <functional>
#include <utility>
#include <vector>

namespace quenby {

/// Keeps every failure it is handed; `onFailure`, when set, runs after recording.
class RecordingAppSwitchFailureHandler final : public AppSwitchFailureHandling {
public:
  void handleFailure(const AppSwitchingError& error, const AppMapping& mapping) override {
    failures.emplace_back(error, mapping);
    if (onFailure) {
      onFailure();
    }
  }

  std::vector<std::pair<AppSwitchingError, AppMapping>> failures;
  std::function<void()> onFailure;
};

} // namespace quenby
