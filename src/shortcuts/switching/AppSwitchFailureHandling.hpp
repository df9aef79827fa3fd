#pragma once

#include "shortcuts/mapping/AppMapping.hpp"
#include "shortcuts/switching/AppSwitchingError.hpp"

namespace quenby {

/// Decides who hears about a failed switch: the user, or only the log.
class AppSwitchFailureHandling {
public:
  virtual ~AppSwitchFailureHandling() = default;
  virtual void handleFailure(const AppSwitchingError& error, const AppMapping& mapping) = 0;
};

/// Tells no one.
class InertAppSwitchFailureHandler final : public AppSwitchFailureHandling {
public:
  void handleFailure(const AppSwitchingError&, const AppMapping&) override {}
};

} // namespace quenby
