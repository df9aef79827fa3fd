#pragma once

#include "app/ApplicationActivationPolicy.hpp"
#include "app/ApplicationTerminating.hpp"
#include "app/ConfigurationFailurePanelMaking.hpp"
#include "app/menu/HUDEnableExplaining.hpp"

#include <memory>

namespace quenby {

/// What the application shell needs from the platform: its activation policy, the panels that
/// report configuration failures, the alert shown before the HUD is turned on, and quitting.
struct AppShellPlatform {
  std::shared_ptr<ApplicationActivationPolicy> activationPolicy;
  std::shared_ptr<ConfigurationFailurePanelMaking> failurePanelFactory;
  std::shared_ptr<HUDEnableExplaining> hudEnableExplainer =
      std::make_shared<InertHUDEnableExplainer>();
  std::shared_ptr<ApplicationTerminating> terminator =
      std::make_shared<InertApplicationTerminator>();

  /// A policy that changes nothing, panels and alerts that never show (the alert answers
  /// cancel), and no quitting.
  [[nodiscard]] static AppShellPlatform inert() {
    return {.activationPolicy = std::make_shared<InertApplicationActivationPolicy>(),
            .failurePanelFactory = std::make_shared<InertConfigurationFailurePanelFactory>()};
  }
};

} // namespace quenby
