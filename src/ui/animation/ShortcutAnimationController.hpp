#pragma once

#include "base/Geometry.hpp"
#include "base/MainScheduler.hpp"
#include "base/ObservationToken.hpp"
#include "data/AppPreferencesProviding.hpp"
#include "shortcuts/running/ApplicationIconProviding.hpp"
#include "ui/animation/ShortcutAnimationMotionProviding.hpp"
#include "ui/animation/ShortcutAnimationPanelCreating.hpp"
#include "ui/animation/ShortcutAnimationPaneling.hpp"
#include "ui/animation/ShortcutAnimationPresenting.hpp"
#include "ui/animation/ShortcutAnimationScreenProviding.hpp"
#include "ui/animation/ShortcutAnimationViewModel.hpp"

#include <cstdint>
#include <memory>

namespace quenby {

/// Plays the icon-and-label animation of an accepted shortcut in a square centred on the chosen
/// screen. The panel is made once (at prewarm or the first presentation) and only ordered in and
/// out after that. Each presentation supersedes the one before: its pending hide is cancelled and
/// the animation replaced, so rapid shortcuts restart the animation rather than queue.
///
/// Main thread only. Every collaborator must outlive the controller.
class ShortcutAnimationController final : public ShortcutAnimationPresenting {
public:
  static constexpr Size kPanelSize{168, 168};

  struct Collaborators {
    AppPreferencesProviding& preferences;
    const ApplicationIconProviding& icons;
    ShortcutAnimationPanelCreating& panelFactory;
    const ShortcutAnimationScreenProviding& screens;
    const ShortcutAnimationMotionProviding& motion;
    MainScheduler& scheduler;
  };

  explicit ShortcutAnimationController(Collaborators collaborators);
  ShortcutAnimationController(const ShortcutAnimationController&) = delete;
  ShortcutAnimationController& operator=(const ShortcutAnimationController&) = delete;

  /// Shows nothing with the animation switched off, for a mapping without a label, or with no
  /// screen at all.
  void present(const AppMapping& mapping, ActivationModifierPreference modifier) override;
  void prewarm() override;
  void stop() override;

  [[nodiscard]] const ShortcutAnimationViewModel& model() const { return model_; }

private:
  /// Ends the current presentation at once: nothing pending, nothing on screen.
  void cutShort();

  Collaborators collaborators_;
  ShortcutAnimationViewModel model_;
  std::unique_ptr<ShortcutAnimationPaneling> panel_;
  ObservationToken hideWork_;
  AppPreferenceObservation preferenceObservation_;
  /// A hide belongs to the presentation that scheduled it; a later one makes it stale.
  std::uint64_t presentationGeneration_ = 0;
};

} // namespace quenby
