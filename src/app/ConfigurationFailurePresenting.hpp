#pragma once

#include "app/ConfigurationFailure.hpp"

namespace quenby {

/// Puts a failure in front of the user; deciding whether it should be shown is the reporter's job.
class ConfigurationFailurePresenting {
public:
  virtual ~ConfigurationFailurePresenting() = default;
  virtual void present(const ConfigurationFailure& failure) = 0;
};

/// The inert presenter: shows nothing.
class InertConfigurationFailurePresenter final : public ConfigurationFailurePresenting {
public:
  void present(const ConfigurationFailure&) override {}
};

} // namespace quenby
