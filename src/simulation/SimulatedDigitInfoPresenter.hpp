#pragma once

#include "hud/panel/HUDDigitInfoPresenting.hpp"
#include "simulation/ScenarioEventRecorder.hpp"

namespace quenby {

/// Explains a digit by printing a `digit-info` effect.
class SimulatedDigitInfoPresenter final : public HUDDigitInfoPresenting {
public:
  explicit SimulatedDigitInfoPresenter(const ScenarioEventRecorder& recorder)
      : recorder_(recorder) {}

  void show(int digit, const std::string& message) override {
    recorder_.emit("digit-info", {{"digit", digit}, {"message", message}});
  }

private:
  const ScenarioEventRecorder& recorder_;
};

} // namespace quenby
