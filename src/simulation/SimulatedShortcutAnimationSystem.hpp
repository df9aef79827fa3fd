#pragma once

#include "simulation/SimulatedWorld.hpp"
#include "ui/animation/ShortcutAnimationMotionProviding.hpp"
#include "ui/animation/ShortcutAnimationScreenProviding.hpp"

namespace quenby {

/// The simulated screens, pointer and reduce-motion setting at the moment of asking.
class SimulatedShortcutAnimationSystem final : public ShortcutAnimationScreenProviding,
                                               public ShortcutAnimationMotionProviding {
public:
  explicit SimulatedShortcutAnimationSystem(const SimulatedWorld& world) : world_(world) {}

  [[nodiscard]] std::vector<ShortcutAnimationScreen> screens() const override {
    std::vector<ShortcutAnimationScreen> screens;
    for (const auto& screen : world_.screens()) {
      screens.push_back({screen.frame, screen.visibleFrame, screen.isMain});
    }
    return screens;
  }
  [[nodiscard]] Point mouseLocation() const override { return world_.mouse(); }
  [[nodiscard]] bool prefersReducedMotion() const override { return world_.reducesMotion(); }

private:
  const SimulatedWorld& world_;
};

} // namespace quenby
