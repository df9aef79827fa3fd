#pragma once

#include "simulation/ScenarioEventRecorder.hpp"
#include "ui/settings/SettingsWindowMaking.hpp"

#include <memory>

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

/// Builds the simulated Settings window; the recorder must outlive what it builds.
class SimulatedSettingsWindowFactory final : public SettingsWindowMaking {
public:
  explicit SimulatedSettingsWindowFactory(const ScenarioEventRecorder& recorder)
      : recorder_(recorder) {}

  [[nodiscard]] std::unique_ptr<SettingsWindowPresenting>
  makeSettingsWindow(SettingsWindowPages) override {
    return std::make_unique<SimulatedSettingsWindow>(recorder_);
  }

private:
  const ScenarioEventRecorder& recorder_;
};

} // namespace quenby
