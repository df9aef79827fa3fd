#pragma once

#include "base/Localizer.hpp"

namespace quenby {

inline constexpr LocalizedText kSettingsWindowTitle{"settings.window.title", "Quenby Settings",
                                                    "Title of the Settings window."};
inline constexpr LocalizedText kSettingsGeneralTabTitle{
    "settings.tab.general", "General", "Tab of the Settings window with the preferences."};
inline constexpr LocalizedText kSettingsUsageTabTitle{
    "settings.tab.usage", "Usage", "Tab of the Settings window with the usage statistics."};

inline constexpr LocalizedText kSettingsShortcutsSection{
    "settings.section.shortcuts", "Shortcuts",
    "Heading of the General page's part about the digit and letter shortcuts."};
inline constexpr LocalizedText kSettingsHUDSection{
    "settings.section.hud", "Keyboard HUD",
    "Heading of the General page's part about the keyboard overlay."};
inline constexpr LocalizedText kSettingsAnimationSection{
    "settings.section.animation", "Shortcut Animation",
    "Heading of the General page's part about the icon shown after a shortcut."};
inline constexpr LocalizedText kSettingsStartupSection{
    "settings.section.startup", "Startup", "Heading of the General page's part about login."};
inline constexpr LocalizedText kSettingsTestSection{
    "settings.section.test", "Shortcut Test",
    "Heading of the General page's part where a shortcut can be tried without acting."};

inline constexpr LocalizedText kSettingsModifierTitle{
    "settings.modifier.title",
    "Shortcut modifier:", "Label of the menu choosing the key held with a digit or a letter."};
inline constexpr LocalizedText kSettingsModifierOption{"settings.modifier.option", "Option (⌥)",
                                                       "The Option key as the shortcut modifier."};
inline constexpr LocalizedText kSettingsModifierControl{
    "settings.modifier.control", "Control (⌃)", "The Control key as the shortcut modifier."};

inline constexpr LocalizedText kSettingsGestureTitle{
    "settings.hud-gesture.title", "Show the HUD with:",
    "Label of the menu choosing how the modifier key opens the keyboard HUD."};
inline constexpr LocalizedText kSettingsGestureDoubleTap{
    "settings.hud-gesture.double-tap", "Double Tap", "Tapping the modifier key twice."};
inline constexpr LocalizedText kSettingsGestureLongPress{
    "settings.hud-gesture.long-press", "Long Press", "Holding the modifier key down."};
inline constexpr LocalizedText kSettingsGestureBoth{
    "settings.hud-gesture.both", "Double Tap or Long Press",
    "Either gesture of the modifier key opens the HUD."};

inline constexpr LocalizedText kSettingsSizeTitle{
    "settings.hud-size.title", "HUD size:", "Label of the menu choosing the HUD's size."};
inline constexpr LocalizedText kSettingsSizeSmall{"settings.hud-size.small", "Small",
                                                  "The smallest HUD size."};
inline constexpr LocalizedText kSettingsSizeStandard{"settings.hud-size.standard", "Standard",
                                                     "The usual HUD size."};
inline constexpr LocalizedText kSettingsSizeLarge{"settings.hud-size.large", "Large",
                                                  "The largest HUD size."};

inline constexpr LocalizedText kSettingsThemeTitle{
    "settings.hud-theme.title", "HUD appearance:", "Label of the menu choosing the HUD's colours."};
inline constexpr LocalizedText kSettingsThemeLight{"settings.hud-theme.light", "Light",
                                                   "A light HUD."};
inline constexpr LocalizedText kSettingsThemeDark{"settings.hud-theme.dark", "Dark", "A dark HUD."};
inline constexpr LocalizedText kSettingsThemeSystem{
    "settings.hud-theme.system", "Match System",
    "The HUD follows the light or dark appearance chosen in System Settings."};

inline constexpr LocalizedText kSettingsOpacityTitle{
    "settings.hud-opacity.title", "HUD opacity:", "Label of the menu choosing the HUD's opacity."};
inline constexpr LocalizedText kSettingsOpacityPercent{
    "settings.hud-opacity.percent", "%lld%%", "An opacity; %lld is a percentage, 60 to 100."};

inline constexpr LocalizedText kSettingsPlacementTitle{
    "settings.window-placement.title",
    "Show the HUD on:", "Label of the menu choosing the screen the HUD appears on."};
inline constexpr LocalizedText kSettingsDisplayMain{
    "settings.display.main", "Main Display",
    "The screen with the menu bar, for the HUD or the shortcut animation."};
inline constexpr LocalizedText kSettingsDisplayUnderMouse{
    "settings.display.under-mouse", "Display Under the Pointer",
    "The screen the mouse pointer is on, for the HUD or the shortcut animation."};

inline constexpr LocalizedText kSettingsAnimationEnabled{
    "settings.animation.enabled", "Show the app's icon when a shortcut opens it",
    "Switch for the short icon animation after a successful shortcut."};
inline constexpr LocalizedText kSettingsAnimationDisplayTitle{
    "settings.animation.display.title",
    "Show the icon on:", "Label of the menu choosing the screen the shortcut animation plays on."};

inline constexpr LocalizedText kSettingsHideFrontmostTitle{
    "settings.hide-frontmost.title", "Pressing the shortcut of the app in front hides it",
    "Switch: a shortcut hides its application when that application is already in front."};
inline constexpr LocalizedText kSettingsHideFrontmostFootnote{
    "settings.hide-frontmost.footnote",
    "Full-screen Apps cannot be hidden, so the shortcut does nothing there.",
    "Footnote under the hide switch."};

inline constexpr LocalizedText kSettingsHUDEnabledTitle{
    "settings.hud.enabled", "Show the keyboard HUD and use letter shortcuts",
    "Switch that turns the keyboard HUD and the letter shortcuts on, after an explanation."};

inline constexpr LocalizedText kSettingsLaunchAtLoginTitle{
    "settings.launch-at-login.title", "Open Quenby at login",
    "Switch for opening the application when the user logs in. Quenby is not translated."};
inline constexpr LocalizedText kSettingsLaunchAtLoginEnabled{
    "settings.launch-at-login.enabled", "Quenby opens when you log in.",
    "Status under the login switch while the login item is allowed."};
inline constexpr LocalizedText kSettingsLaunchAtLoginRequiresApproval{
    "settings.launch-at-login.requires-approval",
    "Requires approval: allow Quenby in System Settings > General > Login Items.",
    "Status under the login switch while macOS waits for the user to allow the login item. "
    "System Settings, General and Login Items should match their localized names."};
inline constexpr LocalizedText kSettingsLaunchAtLoginNotFound{
    "settings.launch-at-login.not-found",
    "Not available for this copy: move Quenby to the Applications folder and open it from there.",
    "Status under the login switch when macOS cannot register this copy of the application."};
inline constexpr LocalizedText kSettingsLaunchAtLoginError{
    "settings.launch-at-login.error", "The login item could not be changed: %@",
    "%@ is the system's description of the failure."};
inline constexpr LocalizedText kSettingsOpenLoginItems{
    "settings.launch-at-login.open-settings", "Open Login Items Settings…",
    "Button that opens Login Items in System Settings."};

inline constexpr LocalizedText kSettingsEmptyDockPositions{
    "settings.digits.empty-positions", "Dock positions %@ do not contain a pinned application.",
    "%@ is a comma-separated list of Dock positions, for example 7, 8, 9. Dock is the macOS "
    "Dock."};
inline constexpr LocalizedText kSettingsTestedConflict{
    "settings.digits.test-conflict",
    "The last shortcut test received no shortcut: if you pressed one, another app may be taking "
    "%@ shortcuts.",
    "Shown after a shortcut test timed out; %@ is a modifier name, Option or Control."};

inline constexpr LocalizedText kShortcutTestButton{
    "settings.shortcut-test.button", "Test a Shortcut",
    "Button that starts a five-second test: the next shortcut is described instead of used."};
inline constexpr LocalizedText kShortcutTestCancelButton{
    "settings.shortcut-test.cancel", "Stop Test", "Button that ends a running shortcut test."};
inline constexpr LocalizedText kShortcutTestHint{
    "settings.shortcut-test.hint",
    "Press a shortcut within five seconds to see what it would do. Nothing is opened or hidden.",
    "Explanation beside the shortcut test button before a test."};
inline constexpr LocalizedText kShortcutTestCountdown{
    "settings.shortcut-test.countdown", "Press %@ with a digit or a letter… %lld",
    "Shown while a shortcut test waits. %1$@ is a modifier name, Option or Control; %2$lld the "
    "seconds left."};
inline constexpr LocalizedText kShortcutTestTimedOut{
    "settings.shortcut-test.timed-out", "Nothing was pressed within five seconds.",
    "Shown when a shortcut test ended without a shortcut."};
inline constexpr LocalizedText kShortcutTestUnavailable{
    "settings.shortcut-test.unavailable", "Shortcuts are not running, so they cannot be tested.",
    "Shown instead of the shortcut test where no shortcut can be received."};
inline constexpr LocalizedText kShortcutTestWouldOpenDigit{
    "settings.shortcut-test.would-open-digit", "Would open %@ (Dock position %lld)",
    "Outcome of a shortcut test. %1$@ is an application name, %2$lld a Dock position, 1–9."};
inline constexpr LocalizedText kShortcutTestWouldOpenLetter{
    "settings.shortcut-test.would-open-letter", "Would open %@ (assigned to %@)",
    "Outcome of a shortcut test. %1$@ is an application name, %2$@ a letter, A–Z."};
inline constexpr LocalizedText kShortcutTestWouldHide{
    "settings.shortcut-test.would-hide", "Would hide %@: it is already in front",
    "Outcome of a shortcut test. %@ is an application name."};
inline constexpr LocalizedText kShortcutTestUnassigned{
    "settings.shortcut-test.unassigned", "No application is assigned to %@: the key types as usual",
    "Outcome of a shortcut test. %@ is a letter, A–Z."};
inline constexpr LocalizedText kShortcutTestCannotSwitch{
    "settings.shortcut-test.cannot-switch", "Would not open %@: %@",
    "Outcome of a shortcut test. %1$@ is an application name, %2$@ the reason."};
inline constexpr LocalizedText kShortcutTestTypesAsUsual{
    "settings.shortcut-test.types-as-usual", "%@ The key types as usual.",
    "Outcome of a shortcut test for a letter whose application can't be used. %@ is a complete "
    "sentence saying why."};

} // namespace quenby
