#include "app/menu/MenuBarController.hpp"

#include "app/menu/MenuBarTexts.hpp"

#include <utility>

namespace quenby {

MenuBarController::MenuBarController(Collaborators collaborators) : c_(std::move(collaborators)) {}

MenuBarController::~MenuBarController() { stop(); }

void MenuBarController::start() {
  if (!isStopped_) {
    return;
  }
  isStopped_ = false;
  healthObservation_ = c_.feature.observeHealth([this] { synchronize(); });
  keyboardAccessObservation_ = c_.keyboardAccess.observe([this] { synchronize(); });
  c_.optionDigits.setOnHealthChanged([this](const OptionDigitHotKeyHealth&) { synchronize(); });
  preferenceObservation_ = c_.preferences.observe([this](AppPreferenceChange change) {
    if (change.property == AppPreferenceProperty::activationModifier) {
      synchronize();
    }
  });
  diagnosticsObservation_ = c_.diagnostics.observeChanges([this] { synchronize(); });
  c_.presentationPublisher.setCommandHandler(
      [this](const MenuBarCommand& command) { perform(command); });
  // The permission poll runs only after the user enabled the HUD in this session; a permission
  // granted (or revoked) after a relaunch shows as soon as the user looks.
  c_.presentationPublisher.setOpenHandler([this] { c_.feature.refresh(); });
  synchronize();
}

void MenuBarController::stop() {
  if (isStopped_) {
    return;
  }
  isStopped_ = true;
  healthObservation_.cancel();
  keyboardAccessObservation_.cancel();
  c_.optionDigits.setOnHealthChanged(nullptr);
  preferenceObservation_.cancel();
  diagnosticsObservation_.cancel();
  c_.presentationPublisher.setCommandHandler(nullptr);
  c_.presentationPublisher.setOpenHandler(nullptr);
}

void MenuBarController::perform(const MenuBarCommand& command) {
  if (isStopped_) {
    return;
  }
  switch (command.kind) {
  case MenuBarCommand::Kind::openPermissionSettings:
    c_.permission.openSettings(command.permission);
    break;
  case MenuBarCommand::Kind::toggleHUD:
    toggleHUD();
    break;
  case MenuBarCommand::Kind::retryHUD:
    c_.feature.retry();
    break;
  case MenuBarCommand::Kind::retryOptionDigits:
    c_.optionDigits.retry();
    break;
  case MenuBarCommand::Kind::showSettings:
    c_.showSettings();
    break;
  case MenuBarCommand::Kind::quit:
    c_.terminateApplication();
    return;
  }
  // The HUD switch is read, not observed: a command is the only thing here that changes it
  // without also changing the HUD's health.
  synchronize();
}

void MenuBarController::toggleHUD() {
  if (c_.feature.isEnabled()) {
    c_.feature.disable();
    return;
  }
  if (c_.enableExplainer.confirmEnable(hudEnableExplanation(c_.localizer))) {
    c_.feature.enable();
  }
}

void MenuBarController::synchronize() {
  if (isStopped_) {
    return;
  }
  health_ = {.hud = c_.feature.health(), .optionDigits = c_.optionDigits.health()};
  auto presentation =
      MenuBarPresentation::make({.health = health_,
                                 .isHUDEnabled = c_.feature.isEnabled(),
                                 .modifier = c_.preferences.activationModifier(),
                                 .diagnosticsReportIssue = c_.diagnostics.hasIssue(),
                                 .keyboardAccess = c_.keyboardAccess.condition()},
                                c_.localizer);
  if (presentation == presentation_) {
    return;
  }
  presentation_ = std::move(presentation);
  c_.presentationPublisher.publish(presentation_);
}

} // namespace quenby
