#pragma once

#include "app/ConfigurationFailurePanelMaking.hpp"

namespace quenby {

/// Makes AppKit panels drawn as `ConfigurationFailurePanelLayout` describes. Main thread only; no
/// state. Each panel lives as long as the object returned for it and is closed when that goes.
class SystemConfigurationFailurePanelFactory final : public ConfigurationFailurePanelMaking {
public:
  [[nodiscard]] std::unique_ptr<ConfigurationFailurePanel>
  makePanel(const ConfigurationFailure& failure) override;
};

} // namespace quenby
