#pragma once

#include "app/ApplicationActivationPolicy.hpp"
#include "app/ConfigurationFailurePanelMaking.hpp"

#include <memory>

namespace quenby {

/// What the application shell needs from the platform: its activation policy and the panels
/// that report configuration failures.
struct AppShellPlatform {
  std::shared_ptr<ApplicationActivationPolicy> activationPolicy;
  std::shared_ptr<ConfigurationFailurePanelMaking> failurePanelFactory;

  /// A policy that changes nothing and panels that never show.
  [[nodiscard]] static AppShellPlatform inert() {
    return {.activationPolicy = std::make_shared<InertApplicationActivationPolicy>(),
            .failurePanelFactory = std::make_shared<InertConfigurationFailurePanelFactory>()};
  }
};

} // namespace quenby
