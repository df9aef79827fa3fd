#pragma once

#include "app/ApplicationActivationPolicy.hpp"

namespace quenby {

/// NSApplication's activation policy. Main thread only; no state.
class AccessoryActivationPolicy final : public ApplicationActivationPolicy {
public:
  void becomeAccessory() override;
};

} // namespace quenby
