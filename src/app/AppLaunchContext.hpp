#pragma once

#include "base/Environment.hpp"

namespace quenby {

/// How the process was launched: normally, or hosted by a unit-test runner (no status item then).
struct AppLaunchContext {
  bool includesMenuBarExtra = true;

  /// A test host is recognised by "XCTestConfigurationFilePath" being set, whatever its value.
  [[nodiscard]] static AppLaunchContext fromEnvironment(const Environment& environment);

  friend bool operator==(const AppLaunchContext&, const AppLaunchContext&) = default;
};

} // namespace quenby
