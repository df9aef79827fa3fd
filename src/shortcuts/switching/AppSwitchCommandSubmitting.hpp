#pragma once

#include "shortcuts/mapping/AppMapping.hpp"

namespace quenby {

/// Takes requests to bring a mapped application forward; they run one at a time, in the order
/// submitted.
class AppSwitchCommandSubmitting {
public:
  virtual ~AppSwitchCommandSubmitting() = default;
  virtual void submit(const AppMapping& mapping) = 0;
};

/// Drops every request.
class InertAppSwitchCommandSubmitter final : public AppSwitchCommandSubmitting {
public:
  void submit(const AppMapping&) override {}
};

} // namespace quenby
