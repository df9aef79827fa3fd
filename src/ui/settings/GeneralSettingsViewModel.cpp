#include "ui/settings/GeneralSettingsViewModel.hpp"

#include <utility>

namespace quenby {
namespace {

// Each menu lists its preference's cases in order, so an option's index is its case.
template <typename Enum> std::optional<Enum> caseAt(std::size_t index, std::size_t count) {
  if (index >= count) {
    return std::nullopt;
  }
  return static_cast<Enum>(index);
}

} // namespace

GeneralSettingsViewModel::GeneralSettingsViewModel(Collaborators collaborators)
    : c_(std::move(collaborators)), test_({.monitor = c_.testMonitor,
                                           .scheduler = c_.scheduler,
                                           .diagnostics = c_.diagnostics,
                                           .preferences = c_.preferences,
                                           .localizer = c_.localizer}),
      launchAtLoginStatus_(c_.launchAtLogin.status()) {
  const auto resync = [this] { synchronize(); };
  preferenceObservation_ = c_.preferences.observe([this](AppPreferenceChange) { synchronize(); });
  hudObservation_ = c_.hud.observeHealth(resync);
  keyboardAccessObservation_ = c_.keyboardAccess.observe(resync);
  digitObservation_ = c_.optionDigits.observe(resync);
  mappingObservation_ =
      c_.mappings.observe([this](const KeyboardMappingSnapshot&) { synchronize(); });
  diagnosticsObservation_ = c_.diagnostics.observeChanges(resync);
  testObservation_ = test_.observe(resync);
  synchronize();
}

GeneralSettingsViewModel::~GeneralSettingsViewModel() {
  // The session's last word must not reach a half-destroyed page.
  testObservation_.cancel();
  test_.cancel();
}

void GeneralSettingsViewModel::select(ChoiceId id, std::size_t index) {
  auto& p = c_.preferences;
  switch (id) {
  case ChoiceId::activationModifier:
    if (const auto value = caseAt<ActivationModifierPreference>(index, 2)) {
      p.setActivationModifier(*value);
    }
    break;
  case ChoiceId::hudActivationGesture:
    if (const auto value = caseAt<HUDActivationGesturePreference>(index, 3)) {
      p.setHUDActivationGesture(*value);
    }
    break;
  case ChoiceId::hudSize:
    if (const auto value = caseAt<HUDSizePreference>(index, 3)) {
      p.setHUDSize(*value);
    }
    break;
  case ChoiceId::hudTheme:
    if (const auto value = caseAt<HUDThemePreference>(index, 3)) {
      p.setHUDTheme(*value);
    }
    break;
  case ChoiceId::hudOpacity:
    if (const auto value = caseAt<HUDOpacityPreference>(index, 5)) {
      p.setHUDOpacity(*value);
    }
    break;
  case ChoiceId::windowPlacement:
    if (const auto value = caseAt<WindowPlacementPreference>(index, 2)) {
      p.setWindowPlacement(*value);
    }
    break;
  case ChoiceId::shortcutAnimationDisplay:
    if (const auto value = caseAt<ShortcutAnimationDisplayPreference>(index, 2)) {
      p.setShortcutAnimationDisplay(*value);
    }
    break;
  }
}

void GeneralSettingsViewModel::setToggle(ToggleId id, bool isOn) {
  switch (id) {
  case ToggleId::shortcutHidesFrontmostApplication:
    c_.preferences.setShortcutHidesFrontmostApplication(isOn);
    return;
  case ToggleId::shortcutAnimationEnabled:
    c_.preferences.setShortcutAnimationEnabled(isOn);
    return;
  case ToggleId::hudEnabled:
    if (isOn == c_.hud.isEnabled()) {
      return;
    }
    if (!isOn) {
      c_.hud.disable();
    } else if (c_.enableExplainer.confirmEnable(hudEnableExplanation(c_.localizer))) {
      c_.hud.enable();
    }
    // The switch is read, not observed; a cancelled alert must also put the switch back.
    synchronize();
    return;
  case ToggleId::launchAtLogin:
    setLaunchAtLogin(isOn);
    return;
  }
}

void GeneralSettingsViewModel::setLaunchAtLogin(bool isOn) {
  launchAtLoginError_ =
      isOn ? c_.launchAtLogin.registerApplication() : c_.launchAtLogin.unregisterApplication();
  launchAtLoginStatus_ = c_.launchAtLogin.status();
  synchronize();
}

void GeneralSettingsViewModel::perform(Action action) {
  switch (action) {
  case Action::openAccessibilitySettings:
    c_.permission.openSettings(EventTapPermissionKind::accessibility);
    return;
  case Action::openInputMonitoringSettings:
    c_.permission.openSettings(EventTapPermissionKind::inputMonitoring);
    return;
  case Action::retryHUD:
    c_.hud.retry();
    return;
  case Action::retryDigitShortcuts:
    c_.optionDigits.retry();
    return;
  case Action::openLoginItemsSettings:
    c_.launchAtLogin.openLoginItemsSettings();
    return;
  case Action::startShortcutTest:
    test_.start();
    return;
  case Action::cancelShortcutTest:
    test_.cancel();
    return;
  }
}

void GeneralSettingsViewModel::windowDidShow() {
  launchAtLoginStatus_ = c_.launchAtLogin.status();
  // The permission poll runs only after the HUD was enabled in this session.
  c_.hud.refresh();
  synchronize();
}

void GeneralSettingsViewModel::windowWillClose() { test_.cancel(); }

void GeneralSettingsViewModel::synchronize() {
  auto content = GeneralSettingsContent::make(
      {.preferences = c_.preferences,
       .isHUDEnabled = c_.hud.isEnabled(),
       .hud = c_.hud.health(),
       .keyboardAccess = c_.keyboardAccess.condition(),
       .digits = c_.optionDigits.health(),
       .systemShortcutConflicts = c_.optionDigits.systemShortcutConflicts(),
       .dockPositions = c_.mappings.snapshot().numberEntries,
       .diagnostics = c_.diagnostics,
       .launchAtLogin = launchAtLoginStatus_,
       .launchAtLoginError = launchAtLoginError_,
       .test = test_},
      c_.localizer);
  if (content == content_) {
    return;
  }
  content_ = std::move(content);
  observers_.notify();
}

} // namespace quenby
