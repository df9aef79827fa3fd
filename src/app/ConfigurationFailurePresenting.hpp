#pragma once

#include "app/ConfigurationFailure.hpp"

namespace quenby {

/// Puts a failure in front of the user; deciding whether it should be shown is the reporter's job.
class ConfigurationFailurePresenting {
public:
  virtual ~ConfigurationFailurePresenting() = default;
  virtual void present(const ConfigurationFailure& failure) = 0;
};

} // namespace quenby
