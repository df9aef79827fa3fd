#include "shortcuts/hotkeys/OptionDigitHotKeyRegistrar.hpp"

#include "shortcuts/hotkeys/OptionDigitHotKeyRegistrationRequest.hpp"
#include "shortcuts/mapping/NumberMappingEntries.hpp"
#include "shortcuts/switching/AppShortcutAction.hpp"

namespace quenby {

OptionDigitHotKeyRegistrar::OptionDigitHotKeyRegistrar(Collaborators collaborators)
    : collaborators_(std::move(collaborators)),
      hidesFrontmostApplication_(collaborators_.preferences.shortcutHidesFrontmostApplication()),
      hidePreferenceObservation_(
          collaborators_.preferences.observe([this](AppPreferenceChange change) {
            if (const auto hides = change.valueIf<bool>(
                    AppPreferenceProperty::shortcutHidesFrontmostApplication)) {
              hidesFrontmostApplication_ = *hides;
            }
          })) {}

OptionDigitHotKeyRegistrar::~OptionDigitHotKeyRegistrar() { unregisterAll(); }

std::optional<OptionDigitHotKeyError>
OptionDigitHotKeyRegistrar::start(ActivationModifierPreference modifier) {
  unregisterAll();
  activeModifier_ = modifier;

  auto& backend = collaborators_.backend;
  const std::int32_t installStatus =
      backend.installHandler(lifetime_.weak([this](int digit) { handleHotKey(digit); }));
  if (installStatus != 0) {
    return OptionDigitHotKeyError::installHandler(installStatus);
  }
  handlerInstalled_ = true;

  for (const auto& request : OptionDigitHotKeyRegistrationRequest::requestsFor(modifier)) {
    const std::int32_t status =
        backend.registerHotKey(request.keyCode, request.modifierFlags, request.identifier);
    if (status != 0) {
      unregisterAll();
      return OptionDigitHotKeyError::registerHotKey(modifier, request.digit, status);
    }
    registeredIdentifiers_[registeredCount_++] = request.identifier;
  }
  return std::nullopt;
}

void OptionDigitHotKeyRegistrar::unregisterAll() {
  while (registeredCount_ > 0) {
    collaborators_.backend.unregisterHotKey(registeredIdentifiers_[--registeredCount_]);
  }
  if (handlerInstalled_) {
    handlerInstalled_ = false;
    collaborators_.backend.removeHandler();
  }
}

void OptionDigitHotKeyRegistrar::handleHotKey(int digit) {
  if (!NumberMappingEntries::isPosition(digit)) {
    return;
  }
  const NumberMappingEntry& entry = collaborators_.mappings().numberEntries.at(digit);
  if (collaborators_.testMonitor != nullptr && collaborators_.testMonitor->isArmed()) {
    describeForTest(digit, entry);
    return;
  }
  const AppMapping* mapping = entry.mapping();
  if (mapping == nullptr) {
    reportUnavailable(digit, *entry.problem());
    return;
  }
  auto action = AppShortcutAction::decide(*mapping, hidesFrontmostApplication_,
                                          collaborators_.frontmostApplications);
  switch (action.kind) {
  case AppShortcutAction::Kind::reportFailure:
    collaborators_.failureHandler.handleFailure(
        AppSwitchingError::configuration(std::move(*action.failure)), *mapping);
    return;
  case AppShortcutAction::Kind::hide:
    collaborators_.appHider.hideIfFrontmost(*mapping);
    return;
  case AppShortcutAction::Kind::switchToApplication:
    collaborators_.animation.present(*mapping, activeModifier_);
    collaborators_.switchCommands.submit(*mapping);
    return;
  }
}

void OptionDigitHotKeyRegistrar::reportUnavailable(int digit, const NumberMappingProblem& problem) {
  collaborators_.configurationReporter.report(
      unavailableDockPositionFailure(digit, problem, collaborators_.localizer));
}

void OptionDigitHotKeyRegistrar::describeForTest(int digit, const NumberMappingEntry& entry) {
  using Outcome = ShortcutTestMonitor::Observation::Outcome;
  ShortcutTestMonitor::Observation observation{.modifier = activeModifier_,
                                               .key = static_cast<char>('0' + digit)};
  if (const AppMapping* mapping = entry.mapping()) {
    observation.applicationName = mapping->displayName;
    auto action = AppShortcutAction::decide(*mapping, hidesFrontmostApplication_,
                                            collaborators_.frontmostApplications);
    switch (action.kind) {
    case AppShortcutAction::Kind::reportFailure:
      observation.outcome = Outcome::cannotSwitch;
      observation.failure = std::move(action.failure);
      break;
    case AppShortcutAction::Kind::hide:
      observation.outcome = Outcome::hideApplication;
      break;
    case AppShortcutAction::Kind::switchToApplication:
      observation.outcome = Outcome::switchToApplication;
      break;
    }
  } else {
    observation.outcome = Outcome::dockPositionUnavailable;
    observation.dockProblem = *entry.problem();
  }
  collaborators_.testMonitor->report(observation);
}

} // namespace quenby
