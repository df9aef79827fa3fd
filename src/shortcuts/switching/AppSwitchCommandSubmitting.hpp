#pragma once

#include "shortcuts/mapping/AppMapping.hpp"

namespace quenby {

/// Where shortcut handlers send a request to bring a mapped application forward.
class AppSwitchCommandSubmitting {
public:
  virtual ~AppSwitchCommandSubmitting() = default;
  virtual void submit(const AppMapping& mapping) = 0;
};

/// Switches to nothing.
class InertAppSwitchCommandSubmitter final : public AppSwitchCommandSubmitting {
public:
  void submit(const AppMapping&) override {}
};

} // namespace quenby
