#pragma once

#include "app/ConfigurationFailurePanelMaking.hpp"
#include "simulation/ScenarioEventRecorder.hpp"

namespace quenby {

/// Shows a failure panel by printing it as a `failure` effect.
class SimulatedFailurePanelFactory final : public ConfigurationFailurePanelMaking {
public:
  explicit SimulatedFailurePanelFactory(const ScenarioEventRecorder& recorder)
      : recorder_(recorder) {}

  [[nodiscard]] std::unique_ptr<ConfigurationFailurePanel>
  makePanel(const ConfigurationFailure& failure) override {
    recorder_.emit("failure",
                   {{"id", failure.id}, {"title", failure.title}, {"message", failure.message}});
    return std::make_unique<InertConfigurationFailurePanel>();
  }

private:
  const ScenarioEventRecorder& recorder_;
};

} // namespace quenby
