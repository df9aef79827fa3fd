#pragma once

#include "app/ConfigurationFailure.hpp"

namespace quenby {

/// Where features send the failures that the user has to fix.
class ConfigurationFailureReporting {
public:
  virtual ~ConfigurationFailureReporting() = default;
  virtual void report(const ConfigurationFailure& failure) = 0;
};

/// Tells nobody.
class InertConfigurationFailureReporter final : public ConfigurationFailureReporting {
public:
  void report(const ConfigurationFailure&) override {}
};

} // namespace quenby
