#pragma once

#include "data/AppPreferences.hpp"
#include "shortcuts/mapping/AppMapping.hpp"

namespace quenby {

/// Confirms an accepted shortcut with a short animation of the application's icon and the
/// shortcut's label. Called just before the switch is submitted; returns at once. Main thread
/// only.
class ShortcutAnimationPresenting {
public:
  virtual ~ShortcutAnimationPresenting() = default;
  virtual void present(const AppMapping& mapping, ActivationModifierPreference modifier) = 0;
  /// Builds what the first presentation would otherwise pay for.
  virtual void prewarm() = 0;
  /// Cuts a running animation short and leaves nothing on screen.
  virtual void stop() = 0;
};

/// Shows nothing.
class NoOpShortcutAnimationPresenter final : public ShortcutAnimationPresenting {
public:
  void present(const AppMapping&, ActivationModifierPreference) override {}
  void prewarm() override {}
  void stop() override {}
};

} // namespace quenby
