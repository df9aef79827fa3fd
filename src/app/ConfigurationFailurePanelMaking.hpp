#pragma once

#include "app/ConfigurationFailure.hpp"
#include "app/ConfigurationFailurePanel.hpp"

#include <memory>

namespace quenby {

/// Makes the panel that describes one failure; the panel is showing when it is returned.
class ConfigurationFailurePanelMaking {
public:
  virtual ~ConfigurationFailurePanelMaking() = default;
  [[nodiscard]] virtual std::unique_ptr<ConfigurationFailurePanel>
  makePanel(const ConfigurationFailure& failure) = 0;
};

/// The inert factory: makes panels that never appear.
class InertConfigurationFailurePanelFactory final : public ConfigurationFailurePanelMaking {
public:
  [[nodiscard]] std::unique_ptr<ConfigurationFailurePanel>
  makePanel(const ConfigurationFailure&) override {
    return std::make_unique<InertConfigurationFailurePanel>();
  }
};

} // namespace quenby
