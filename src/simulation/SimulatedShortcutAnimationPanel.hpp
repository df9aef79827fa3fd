#pragma once

#include "simulation/ScenarioEventRecorder.hpp"
#include "ui/animation/ShortcutAnimationPanelCreating.hpp"

namespace quenby {

/// The animation's panel on the simulated screen: each play prints an `animation` line with the
/// label and the frame, marked `reduced` when the timeline is the reduced-motion one. Hiding
/// prints nothing.
class SimulatedShortcutAnimationPanel final : public ShortcutAnimationPaneling {
public:
  SimulatedShortcutAnimationPanel(Size contentSize, const ShortcutAnimationViewModel& model,
                                  const ScenarioEventRecorder& recorder)
      : contentSize_(contentSize), model_(model), recorder_(recorder) {}

  void setFrameOrigin(Point origin) override { origin_ = origin; }
  void prepareContent() override {}
  void play() override;
  void hide() override {}

private:
  Size contentSize_;
  const ShortcutAnimationViewModel& model_;
  const ScenarioEventRecorder& recorder_;
  Point origin_;
};

class SimulatedShortcutAnimationPanelFactory final : public ShortcutAnimationPanelCreating {
public:
  explicit SimulatedShortcutAnimationPanelFactory(const ScenarioEventRecorder& recorder)
      : recorder_(recorder) {}

  [[nodiscard]] std::unique_ptr<ShortcutAnimationPaneling>
  makePanel(Size contentSize, const ShortcutAnimationViewModel& model) override {
    return std::make_unique<SimulatedShortcutAnimationPanel>(contentSize, model, recorder_);
  }

private:
  const ScenarioEventRecorder& recorder_;
};

} // namespace quenby
