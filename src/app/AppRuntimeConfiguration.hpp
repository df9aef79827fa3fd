#pragma once

#include "base/Environment.hpp"

namespace quenby {

/// Switches read from the environment when the coordinator is built.
struct AppRuntimeConfiguration {
  /// Set while the HUD's presentation is being measured: the application catalog monitor then
  /// stays off so that its refreshes do not disturb the figures.
  bool isHUDPerformanceMeasurement = false;

  /// True only for "QUENBY_RUN_HUD_PERFORMANCE_TESTS" equal to exactly "1".
  [[nodiscard]] static AppRuntimeConfiguration fromEnvironment(const Environment& environment);

  friend bool operator==(const AppRuntimeConfiguration&, const AppRuntimeConfiguration&) = default;
};

} // namespace quenby
