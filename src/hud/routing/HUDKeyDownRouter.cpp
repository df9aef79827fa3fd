#include "hud/routing/HUDKeyDownRouter.hpp"

#include "hud/tap/KeyboardEventFlags.hpp"

namespace quenby {

HUDKeyDownRouter::HUDKeyDownRouter(Collaborators collaborators)
    : frontmostApplication_(collaborators.frontmostApplication),
      testMonitor_(collaborators.testMonitor), translator_(collaborators.characterTranslator),
      routing_(HUDRoutingSnapshot::from(collaborators.mappings.snapshot())),
      hidesFrontmostApplication_(collaborators.preferences.shortcutHidesFrontmostApplication()),
      modifier_(collaborators.preferences.activationModifier()) {
  mappingObservation_ =
      collaborators.mappings.observe([this](const KeyboardMappingSnapshot& snapshot) {
        routing_ = HUDRoutingSnapshot::from(snapshot);
      });
  preferenceObservation_ = collaborators.preferences.observe([this](AppPreferenceChange change) {
    if (const auto hides =
            change.valueIf<bool>(AppPreferenceProperty::shortcutHidesFrontmostApplication)) {
      hidesFrontmostApplication_ = *hides;
    } else if (const auto modifier = change.valueIf<ActivationModifierPreference>(
                   AppPreferenceProperty::activationModifier)) {
      modifier_ = *modifier;
    }
  });
}

HUDKeyboardEventDecision HUDKeyDownRouter::route(const KeyDownRoutingRequest& request) {
  if (request.hudIsVisible) {
    // Command and nothing else: Command-Shift-comma is somebody else's shortcut.
    if (request.keyCode == kCommaKeyCode &&
        (request.flags & KeyboardEventFlags::kModifierMask) == KeyboardEventFlags::kCommand) {
      return HUDKeyboardEventDecision::consume(HUDKeyboardAction::openSettings());
    }
    // No modifier test while the HUD is up: Shift-A is A.
    return routing_.decideVisibleKey(translator_.translate(request.keyCode));
  }
  return routeHidden(request.keyCode);
}

HUDKeyboardEventDecision HUDKeyDownRouter::routeHidden(std::uint16_t keyCode) const {
  const HUDKey key = translator_.translate(keyCode);
  if (key.kind() != HUDKey::Kind::letter) {
    return {};
  }
  // Only a letter that can switch is taken; an unresolved one types as usual (looked up before
  // deciding, so that passing it on copies nothing).
  const HUDLetterRoutingEntry* entry = routing_.letter(key.letter());
  if (testMonitor_ != nullptr && testMonitor_->isArmed()) {
    return describeForTest(key.letter(), entry);
  }
  const AppMapping* mapping = entry != nullptr ? entry->mapping() : nullptr;
  if (mapping == nullptr) {
    return {};
  }
  if (hidesFrontmostApplication_) {
    if (const auto front = frontmostApplication_.frontmostBundleIdentifier();
        front && *front == mapping->bundleIdentifier) {
      return HUDKeyboardEventDecision::consume(HUDKeyboardAction::hideApplication(*mapping));
    }
  }
  return HUDKeyboardEventDecision::consume(HUDKeyboardAction::execute(*mapping, key));
}

HUDKeyboardEventDecision
HUDKeyDownRouter::describeForTest(char letter, const HUDLetterRoutingEntry* entry) const {
  using Outcome = ShortcutTestMonitor::Observation::Outcome;
  ShortcutTestMonitor::Observation observation{.modifier = modifier_, .key = letter};
  const AppMapping* mapping = entry != nullptr ? entry->mapping() : nullptr;
  if (entry == nullptr) {
    observation.outcome = Outcome::unassigned;
  } else if (mapping == nullptr) {
    observation.outcome = Outcome::cannotSwitch;
    observation.failure = AppSwitchConfigurationFailure::unresolved(*entry->problem());
  } else {
    observation.applicationName = mapping->displayName;
    const auto front = hidesFrontmostApplication_
                           ? frontmostApplication_.frontmostBundleIdentifier()
                           : std::nullopt;
    observation.outcome = front && *front == mapping->bundleIdentifier
                              ? Outcome::hideApplication
                              : Outcome::switchToApplication;
  }
  // Only a key that would have acted is swallowed; the rest type as they would have.
  observation.keyTypesAsUsual = mapping == nullptr;
  testMonitor_->report(observation);
  if (observation.keyTypesAsUsual) {
    return {};
  }
  return HUDKeyboardEventDecision::consume(HUDKeyboardAction::none());
}

} // namespace quenby
