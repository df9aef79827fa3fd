#pragma once

#include "shortcuts/mapping/AppMapping.hpp"
#include "shortcuts/switching/AppSwitchConfigurationFailure.hpp"

namespace quenby {

/// Where a digit press sends a mapping that failed the check before switching; the switching
/// failure handler turns it into the once-only report for that mapping.
class AppSwitchConfigurationFailureHandling {
public:
  virtual ~AppSwitchConfigurationFailureHandling() = default;
  virtual void handleConfigurationFailure(const AppSwitchConfigurationFailure& failure,
                                          const AppMapping& mapping) = 0;
};

/// Drops every failure.
class InertAppSwitchConfigurationFailureHandler final
    : public AppSwitchConfigurationFailureHandling {
public:
  void handleConfigurationFailure(const AppSwitchConfigurationFailure&,
                                  const AppMapping&) override {}
};

} // namespace quenby
