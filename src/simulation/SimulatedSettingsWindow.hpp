#pragma once

#include "simulation/ScenarioEventRecorder.hpp"
#include "ui/settings/SettingsWindowPresenting.hpp"

namespace quenby {

/// Shows the Settings window by printing a `settings` effect.
class SimulatedSettingsWindow final : public SettingsWindowPresenting {
public:
  explicit SimulatedSettingsWindow(const ScenarioEventRecorder& recorder) : recorder_(recorder) {}

  void show() override { recorder_.emit("settings", {}); }
  void close() override {}

private:
  const ScenarioEventRecorder& recorder_;
};

} // namespace quenby
