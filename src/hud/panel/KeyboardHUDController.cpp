#include "hud/panel/KeyboardHUDController.hpp"

#include "hud/panel/KeyboardHUDPanelConfiguration.hpp"
#include "hud/routing/HUDRoutingSnapshot.hpp"
#include "hud/view/KeyboardHUDLayout.hpp"
#include "shortcuts/switching/AppSwitchConfigurationFailure.hpp"

#include <utility>

namespace quenby {

KeyboardHUDController::KeyboardHUDController(Collaborators collaborators)
    : collaborators_(std::move(collaborators)),
      outsideClickMonitor_(collaborators_.outsideClickMonitor) {
  auto& preferences = collaborators_.preferences;
  auto& model = collaborators_.model;
  panel_ = collaborators_.panelFactory.makePanel(
      KeyboardHUDPanelConfiguration::make(preferences.hudSize(), preferences.hudTheme()), model,
      lifetime_.weak([this](HUDKey key) { selectKey(key); }));
  model.onLetterClicked =
      lifetime_.weak([this](char letter) { selectKey(HUDKey::letter(letter)); });
  model.onNumberClicked = lifetime_.weak([this](int digit) { selectKey(HUDKey::number(digit)); });
  model.onSettingsClicked = lifetime_.weak([this] { openSettings(); });

  preferenceObservation_ = preferences.observe(
      lifetime_.weak([this](AppPreferenceChange change) { preferenceChanged(change); }));
  mappingObservation_ = collaborators_.mappings.observe(
      lifetime_.weak([this](const KeyboardMappingSnapshot&) { contentChanged(); }));
  runningObservation_ =
      collaborators_.runningApplications.observe(lifetime_.weak([this] { contentChanged(); }));
  iconObservation_ =
      collaborators_.iconProvider.observeIcons(lifetime_.weak([this] { iconsChanged(); }));
}

KeyboardHUDController::~KeyboardHUDController() {
  hide();
  auto& model = collaborators_.model;
  model.onLetterClicked = nullptr;
  model.onNumberClicked = nullptr;
  model.onSettingsClicked = nullptr;
}

void KeyboardHUDController::show() {
  if (panel_->isVisible()) {
    return;
  }
  auto& metrics = collaborators_.metrics;
  resetContentAnimation();
  presentationTargetFrame_ = currentTargetFrame();
  applySize(collaborators_.preferences.hudSize(), false);
  applyOpacity(collaborators_.preferences.hudOpacity());
  collaborators_.model.setCurrent(buildContent());
  metrics.mark(HUDPresentationPhase::snapshotApplied);
  centre(*presentationTargetFrame_);

  const auto generation = ++presentationGeneration_;
  panel_->present(lifetime_.weak([this, generation] { firstFramePresented(generation); }));
  metrics.mark(HUDPresentationPhase::panelOrdered);

  if (!panel_->isVisible()) {
    // The system would not order the panel in: leave everything as if it had never been asked.
    outsideClickMonitor_.stop();
    ++presentationGeneration_;
    presentationTargetFrame_.reset();
    metrics.cancelPresentation();
    return;
  }
  outsideClickMonitor_.start(
      lifetime_.weak([this](HUDMouseButton, Point screenPoint) { outsideClick(screenPoint); }));
}

void KeyboardHUDController::hide() {
  outsideClickMonitor_.stop();
  if (!panel_->isVisible()) {
    return;
  }
  resetContentAnimation();
  ++presentationGeneration_;
  presentationTargetFrame_.reset();
  collaborators_.metrics.cancelPresentation();
  panel_->dismiss();
}

void KeyboardHUDController::perform(const HUDKeyboardAction& action) {
  if (action.is<HUDKeyboardAction::None>()) {
    return;
  }
  hide();
  if (action.is<HUDKeyboardAction::Dismiss>()) {
    return;
  }
  pendingActions_.push_back(action);
  if (pendingActions_.size() == 1) {
    pendingActionsRun_ =
        collaborators_.actionScheduler.post(lifetime_.weak([this] { runPendingActions(); }));
  }
}

void KeyboardHUDController::selectKey(HUDKey key) {
  // What the user saw on the key, not what the mappings hold by now.
  const auto routing = HUDRoutingSnapshot::from(collaborators_.model.current().snapshot);
  auto decision = routing.decideVisibleKey(key);
  if (key.kind() == HUDKey::Kind::letter && decision.action.is<HUDKeyboardAction::None>()) {
    decision.action = HUDKeyboardAction::openLetterEditor(key.letter(), std::nullopt);
  }
  perform(decision.action);
}

void KeyboardHUDController::runPendingActions() {
  // Taken first: an action may choose another (a window opening may hide the HUD).
  const auto actions = std::exchange(pendingActions_, {});
  pendingActionsRun_ = ObservationToken();
  for (const auto& action : actions) {
    run(action);
  }
}

void KeyboardHUDController::run(const HUDKeyboardAction& action) {
  if (const auto* execute = action.as<HUDKeyboardAction::Execute>()) {
    switchChecked(execute->mapping);
  } else if (const auto* hiding = action.as<HUDKeyboardAction::HideApplication>()) {
    collaborators_.appHider.hideIfFrontmost(hiding->mapping);
  } else if (const auto* info = action.as<HUDKeyboardAction::OpenNumericInfo>()) {
    collaborators_.digitInfo.show(info->digit,
                                  info->problem.message(info->digit, collaborators_.localizer));
  } else if (const auto* editor = action.as<HUDKeyboardAction::OpenLetterEditor>()) {
    if (letterEditorOpener_) {
      letterEditorOpener_(editor->letter);
    }
  } else if (action.is<HUDKeyboardAction::OpenSettings>() && settingsOpener_) {
    settingsOpener_();
  }
}

void KeyboardHUDController::switchChecked(const AppMapping& mapping) {
  if (auto failure = switchConfigurationFailure(mapping)) {
    collaborators_.failureHandler.handleFailure(
        AppSwitchingError::configuration(std::move(*failure)), mapping);
    return;
  }
  collaborators_.animation.present(mapping, collaborators_.preferences.activationModifier());
  collaborators_.switchCommands.submit(mapping);
}

void KeyboardHUDController::resetContentAnimation() {
  contentAnimationStep_.cancel();
  ++contentAnimationGeneration_;
  collaborators_.model.setContentAnimationPhase(KeyboardHUDContentAnimationPhase::visible);
}

Rect KeyboardHUDController::currentTargetFrame() const {
  return collaborators_.windowPlacement.snapshot().targetFrame(
      collaborators_.preferences.windowPlacement());
}

void KeyboardHUDController::applySize(HUDSizePreference size, bool reposition) {
  const Size contentSize = KeyboardHUDLayout::contentSize(size);
  auto& model = collaborators_.model;
  if (model.hudSize() == size && panel_->contentSize() == contentSize) {
    return;
  }
  model.setHUDSize(size);
  if (panel_->contentSize() != contentSize) {
    panel_->setContentSize(contentSize);
  }
  if (reposition && panel_->isVisible()) {
    // The screen chosen when the HUD appeared, not the one the mouse is on now.
    if (!presentationTargetFrame_) {
      presentationTargetFrame_ = currentTargetFrame();
    }
    centre(*presentationTargetFrame_);
  }
}

void KeyboardHUDController::applyOpacity(HUDOpacityPreference opacity) {
  const double alpha = keyboardHUDAlpha(opacity);
  if (panel_->alpha() != alpha) {
    panel_->setAlpha(alpha);
  }
}

void KeyboardHUDController::centre(Rect target) {
  // Centred as it is, never clamped: the HUD is smaller than any screen it is shown on.
  const Rect frame = panel_->frame();
  panel_->setFrameOrigin({target.x + target.width / 2 - frame.width / 2,
                          target.y + target.height / 2 - frame.height / 2});
}

KeyboardHUDMappingCache KeyboardHUDController::buildContent() const {
  KeyboardHUDMappingCache content;
  content.snapshot = collaborators_.mappings.snapshot();
  content.runningBundleIdentifiers = collaborators_.runningApplications.runningBundleIdentifiers();
  content.icons = loadedIcons(content.snapshot);
  return content;
}

std::map<std::string, std::shared_ptr<const PreparedApplicationIcon>>
KeyboardHUDController::loadedIcons(const KeyboardMappingSnapshot& snapshot) const {
  std::map<std::string, std::shared_ptr<const PreparedApplicationIcon>> icons;
  const auto add = [&](const AppMapping& mapping) {
    if (!mapping.launchURL() || icons.contains(mapping.bundleIdentifier)) {
      return;
    }
    if (auto icon = collaborators_.iconProvider.icon(mapping)) {
      icons.emplace(mapping.bundleIdentifier, std::move(icon));
    }
  };
  snapshot.forEachMapping(add);
  return icons;
}

void KeyboardHUDController::firstFramePresented(std::uint64_t generation) {
  if (generation != presentationGeneration_ || !panel_->isVisible()) {
    return;
  }
  collaborators_.metrics.completePresentation();
  if (onFirstFramePresented_) {
    onFirstFramePresented_();
  }
}

void KeyboardHUDController::outsideClick(Point screenPoint) {
  // A click on the panel is the panel's own business, whichever button.
  if (!panel_->frame().contains(screenPoint)) {
    hide();
  }
}

void KeyboardHUDController::preferenceChanged(const AppPreferenceChange& change) {
  switch (change.property) {
  case AppPreferenceProperty::hudSize:
    applySize(std::get<HUDSizePreference>(change.value), true);
    return;
  case AppPreferenceProperty::hudTheme: {
    const auto theme = std::get<HUDThemePreference>(change.value);
    collaborators_.model.setHUDTheme(theme);
    panel_->setAppearance(keyboardHUDAppearanceName(theme));
    return;
  }
  case AppPreferenceProperty::hudOpacity:
    if (panel_->isVisible()) {
      applyOpacity(std::get<HUDOpacityPreference>(change.value));
    }
    return;
  default:
    // The placement is read at the next show; the rest is not the panel's.
    return;
  }
}

void KeyboardHUDController::contentChanged() {
  if (!panel_->isVisible()) {
    return;
  }
  contentAnimationStep_.cancel();
  const auto generation = ++contentAnimationGeneration_;
  collaborators_.model.setContentAnimationPhase(KeyboardHUDContentAnimationPhase::fadingOut);
  contentAnimationStep_ = collaborators_.contentAnimationScheduler.scheduleAfter(
      kFadeOutDuration, lifetime_.weak([this, generation] { fadeIn(generation); }));
}

void KeyboardHUDController::iconsChanged() {
  if (!panel_->isVisible()) {
    return;
  }
  auto& model = collaborators_.model;
  model.setIcons(loadedIcons(model.current().snapshot));
}

void KeyboardHUDController::fadeIn(std::uint64_t generation) {
  if (!panel_->isVisible() || generation != contentAnimationGeneration_) {
    return;
  }
  auto& model = collaborators_.model;
  model.setCurrent(buildContent());
  model.setContentAnimationPhase(KeyboardHUDContentAnimationPhase::fadingIn);
  contentAnimationStep_ = collaborators_.contentAnimationScheduler.scheduleAfter(
      kFadeInDuration, lifetime_.weak([this, generation] { finishFade(generation); }));
}

void KeyboardHUDController::finishFade(std::uint64_t generation) {
  if (!panel_->isVisible() || generation != contentAnimationGeneration_) {
    return;
  }
  collaborators_.model.setContentAnimationPhase(KeyboardHUDContentAnimationPhase::visible);
  contentAnimationStep_ = ObservationToken();
}

} // namespace quenby
