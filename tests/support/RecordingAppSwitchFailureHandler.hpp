#pragma once

#include "shortcuts/switching/AppSwitchFailureHandling.hpp"

#include <utility>
#include <vector>

namespace quenby {

/// Keeps every failure it is handed.
class RecordingAppSwitchFailureHandler final : public AppSwitchFailureHandling {
public:
  void handleFailure(const AppSwitchingError& error, const AppMapping& mapping) override {
    failures.emplace_back(error, mapping);
  }

  std::vector<std::pair<AppSwitchingError, AppMapping>> failures;
};

} // namespace quenby
