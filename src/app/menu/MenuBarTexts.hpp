#pragma once

#include "base/Localizer.hpp"
#include "hud/feature/HUDHealth.hpp"
#include "shortcuts/hotkeys/OptionDigitHotKeyHealth.hpp"

#include <string_view>

namespace quenby {

inline constexpr LocalizedText kMenuHUDPermissionRequiredText{
    "menu.status.hud.permission-required", "Keyboard HUD: Permission Required",
    "Menu bar status line: the keyboard HUD is on but a privacy permission is missing."};
inline constexpr LocalizedText kMenuHUDEventTapFailedText{
    "menu.status.hud.event-tap-failed", "Keyboard HUD: Event Tap Failed",
    "Menu bar status line: the keyboard HUD is on but its keyboard event tap stopped."};
inline constexpr LocalizedText kMenuHUDDisabledText{
    "menu.status.hud.disabled", "Keyboard HUD: Disabled",
    "Menu bar status line: the user has turned the keyboard HUD off."};
inline constexpr LocalizedText kMenuHUDReadyText{
    "menu.status.hud.ready", "Keyboard HUD: Ready",
    "Menu bar status line: the keyboard HUD is on and working."};
inline constexpr LocalizedText kMenuMissingPermissionsText{
    "menu.status.missing-permissions", "Missing: %@",
    "Menu bar detail line. %@ is a comma-separated list of privacy permission names."};
inline constexpr LocalizedText kMenuAccessibilityPermissionText{
    "menu.status.permission.accessibility", "Accessibility",
    "Name of the macOS Accessibility privacy permission in the menu's list of missing ones."};
inline constexpr LocalizedText kMenuInputMonitoringPermissionText{
    "menu.status.permission.input-monitoring", "Input Monitoring",
    "Name of the macOS Input Monitoring privacy permission in the menu's list of missing ones."};
inline constexpr LocalizedText kMenuHUDIssueText{
    "menu.status.hud.issue", "HUD issue: %@",
    "Menu bar detail line. %@ describes why the keyboard HUD's event tap stopped."};

inline constexpr LocalizedText kMenuDigitRegistrationFailedText{
    "menu.status.digit.registration-failed", "Digit Shortcuts: Registration Failed",
    "Menu bar status line: the modifier-digit shortcuts could not be registered."};
inline constexpr LocalizedText kMenuDigitReadyText{
    "menu.status.digit.ready", "Digit Shortcuts: Ready",
    "Menu bar status line: the modifier-digit shortcuts are registered."};
inline constexpr LocalizedText kMenuDigitNotStartedText{
    "menu.status.digit.not-started", "Digit Shortcuts: Not Started",
    "Menu bar status line: the modifier-digit shortcuts have not been registered yet."};
inline constexpr LocalizedText kMenuDigitIssueText{
    "menu.status.digit.issue", "Shortcut issue: %@",
    "Menu bar detail line. %@ describes why the digit shortcuts could not be registered."};
inline constexpr LocalizedText kMenuDigitConflictText{
    "menu.status.digit.conflict", "Quit or reconfigure apps using %@-1 through %@-9, then retry.",
    "Menu bar detail line after a failed hot-key registration. Both %@ are the same modifier "
    "name, Option or Control."};

inline constexpr LocalizedText kMenuDisableHUDText{"menu.hud.disable", "Disable Keyboard HUD",
                                                   "Menu item that turns the keyboard HUD off."};
inline constexpr LocalizedText kMenuEnableHUDText{
    "menu.hud.enable", "Enable Keyboard HUD…",
    "Menu item that turns the keyboard HUD on, after an explanation."};
inline constexpr LocalizedText kMenuOpenAccessibilitySettingsText{
    "menu.permissions.accessibility", "Open Accessibility Settings…",
    "Menu item that opens the Accessibility privacy pane of System Settings."};
inline constexpr LocalizedText kMenuSecureInputText{
    "menu.status.secure-input", "Letter shortcuts are paused: %@ is using secure keyboard entry",
    "Menu bar detail line while another application holds secure keyboard entry (a password "
    "field, a terminal's secure input); %@ is that application's name."};
inline constexpr LocalizedText kMenuSecureInputUnknownHolderText{
    "menu.status.secure-input.unknown",
    "Letter shortcuts are paused: another app is using secure keyboard entry",
    "Menu bar detail line while secure keyboard entry is on and macOS does not say which "
    "application holds it."};
inline constexpr LocalizedText kMenuTapStaleText{
    "menu.status.tap-stale",
    "Keyboard access looks stale: remove Quenby from Input Monitoring and add it again",
    "Menu bar detail line when macOS shows the Input Monitoring grant but the keyboard tap "
    "receives no keys, typically after an update."};
inline constexpr LocalizedText kMenuOpenInputMonitoringSettingsText{
    "menu.permissions.input-monitoring", "Open Input Monitoring Settings…",
    "Menu item that opens the Input Monitoring privacy pane of System Settings."};
inline constexpr LocalizedText kMenuRetryHUDText{
    "menu.hud.retry", "Retry Keyboard HUD",
    "Menu item that starts the keyboard HUD's event tap again after it stopped."};
inline constexpr LocalizedText kMenuRetryDigitsText{
    "menu.digit-shortcuts.retry", "Retry %@-Digit Shortcuts",
    "Menu item that registers the digit shortcuts again. %@ is the modifier name, Option or "
    "Control."};
inline constexpr LocalizedText kMenuSettingsText{"menu.settings", "Settings",
                                                 "Menu item that opens the Settings window."};
inline constexpr LocalizedText kMenuQuitText{"menu.quit", "Quit Quenby",
                                             "Menu bar menu item that quits Quenby."};

/// The status item's accessibility description while all is well; the product's name is not
/// translated.
inline constexpr std::string_view kMenuBarNormalDescription = "Quenby";
inline constexpr LocalizedText kMenuNeedsAttentionText{
    "menu.status.needs-attention", "Quenby needs attention",
    "Spoken for the menu bar icon while something in its menu needs the user."};

inline constexpr LocalizedText kEnableHUDAlertMessageText{
    "alert.enable-hud.message", "Enable the Keyboard HUD?",
    "Title of the alert shown before the keyboard HUD is turned on."};
inline constexpr LocalizedText kEnableHUDAlertInformativeText{
    "alert.enable-hud.informative",
    "Quenby needs Accessibility and Input Monitoring access to recognize HUD activation gestures "
    "globally and suppress Escape or mapped keys only while the HUD is visible. Quenby does not "
    "record typed text, window titles, or continuous key streams.",
    "Body of the alert shown before the keyboard HUD is turned on: why the permissions are "
    "needed and what is never recorded."};
inline constexpr LocalizedText kEnableHUDAlertContinueText{
    "alert.enable-hud.continue", "Continue",
    "Button of the enable-HUD alert that turns the keyboard HUD on."};
inline constexpr LocalizedText kEnableHUDAlertCancelText{
    "alert.enable-hud.cancel", "Cancel",
    "Button of the enable-HUD alert that leaves the keyboard HUD off."};

/// The status line of the HUD, as the menu and the General settings page show it.
inline const LocalizedText& hudStatusText(HUDHealth::Kind kind) {
  switch (kind) {
  case HUDHealth::Kind::needsPermission:
    return kMenuHUDPermissionRequiredText;
  case HUDHealth::Kind::tapFailure:
    return kMenuHUDEventTapFailedText;
  case HUDHealth::Kind::disabled:
    return kMenuHUDDisabledText;
  case HUDHealth::Kind::ready:
    break;
  }
  return kMenuHUDReadyText;
}

/// The status line of the digit shortcuts, as the menu and the General settings page show it.
inline const LocalizedText& digitStatusText(OptionDigitHotKeyHealth::Kind kind) {
  switch (kind) {
  case OptionDigitHotKeyHealth::Kind::registrationFailed:
    return kMenuDigitRegistrationFailedText;
  case OptionDigitHotKeyHealth::Kind::ready:
    return kMenuDigitReadyText;
  case OptionDigitHotKeyHealth::Kind::notStarted:
    break;
  }
  return kMenuDigitNotStartedText;
}

} // namespace quenby
