#include "ui/animation/ShortcutAnimationController.hpp"

#include "ui/animation/ShortcutAnimationLabel.hpp"

#include <chrono>
#include <utility>

namespace quenby {

ShortcutAnimationController::ShortcutAnimationController(Collaborators collaborators)
    : collaborators_(collaborators),
      preferenceObservation_(collaborators_.preferences.observe([this](AppPreferenceChange change) {
        // Switched off mid-animation: the user has just said they do not want to see it.
        if (change.valueIf<bool>(AppPreferenceProperty::shortcutAnimationEnabled) == false) {
          cutShort();
        }
      })) {}

void ShortcutAnimationController::present(const AppMapping& mapping,
                                          ActivationModifierPreference modifier) {
  auto& preferences = collaborators_.preferences;
  if (!preferences.shortcutAnimationEnabled()) {
    return;
  }
  auto label = shortcutAnimationLabel(mapping.source, modifier);
  if (!label) {
    return;
  }
  const auto target = ShortcutAnimationScreen::targetFrame(collaborators_.screens.screens(),
                                                           collaborators_.screens.mouseLocation(),
                                                           preferences.shortcutAnimationDisplay());
  if (!target) {
    return;
  }
  const Point origin{target->x + target->width / 2 - kPanelSize.width / 2,
                     target->y + target->height / 2 - kPanelSize.height / 2};

  hideWork_.cancel();
  const std::uint64_t generation = ++presentationGeneration_;
  const auto timeline = collaborators_.motion.prefersReducedMotion()
                            ? ShortcutAnimationTimeline::reduced()
                            : ShortcutAnimationTimeline::normal();
  model_.setIcon(collaborators_.icons.icon(mapping));
  model_.setShortcutLabel(std::move(*label));
  model_.setTimeline(timeline);

  prewarm();
  panel_->setFrameOrigin(origin);
  panel_->play();
  hideWork_ = collaborators_.scheduler.scheduleAfter(
      std::chrono::round<Duration>(std::chrono::duration<double>(timeline.totalDuration())),
      [this, generation] {
        if (generation == presentationGeneration_ && panel_) {
          panel_->hide();
        }
      });
}

void ShortcutAnimationController::prewarm() {
  if (panel_) {
    return;
  }
  panel_ = collaborators_.panelFactory.makePanel(kPanelSize, model_);
  panel_->prepareContent();
}

void ShortcutAnimationController::stop() { cutShort(); }

void ShortcutAnimationController::cutShort() {
  ++presentationGeneration_;
  hideWork_.cancel();
  if (panel_) {
    panel_->hide();
  }
}

} // namespace quenby
