#pragma once

#include "app/ShortcutDiagnostics.hpp"
#include "base/Localizer.hpp"
#include "data/AppPreferencesProviding.hpp"
#include "hud/access/KeyboardAccessCondition.hpp"
#include "hud/feature/HUDHealth.hpp"
#include "shortcuts/hotkeys/OptionDigitHotKeyHealth.hpp"
#include "shortcuts/hotkeys/SymbolicHotKeyConflict.hpp"
#include "shortcuts/mapping/NumberMappingEntries.hpp"
#include "ui/login/LaunchAtLoginStatus.hpp"
#include "ui/settings/ShortcutTestSession.hpp"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quenby {

/// Everything the General page shows, as plain values: the view draws it and a test reads it.
/// Rebuilt whole from the features' state; equal contents draw the same page.
struct GeneralSettingsContent {
  /// The page's menus, in page order; each option's index is its preference's case.
  enum class ChoiceId : std::uint8_t {
    activationModifier,
    hudActivationGesture,
    hudSize,
    hudTheme,
    hudOpacity,
    windowPlacement,
    shortcutAnimationDisplay,
  };
  static constexpr std::size_t kChoiceCount = 7;

  enum class ToggleId : std::uint8_t {
    shortcutHidesFrontmostApplication,
    hudEnabled,
    shortcutAnimationEnabled,
    launchAtLogin,
  };
  static constexpr std::size_t kToggleCount = 4;

  enum class Action : std::uint8_t {
    openAccessibilitySettings,
    openInputMonitoringSettings,
    retryHUD,
    retryDigitShortcuts,
    openLoginItemsSettings,
    startShortcutTest,
    cancelShortcutTest,
  };

  struct Choice {
    ChoiceId id = ChoiceId::activationModifier;
    std::string title;
    std::vector<std::string> options;
    std::size_t selectedIndex = 0;
    bool isEnabled = true;
    friend bool operator==(const Choice&, const Choice&) = default;
  };
  struct Toggle {
    ToggleId id = ToggleId::shortcutHidesFrontmostApplication;
    std::string title;
    bool isOn = false;
    bool isEnabled = true;
    /// Drawn under the switch; empty for none.
    std::string footnote;
    friend bool operator==(const Toggle&, const Toggle&) = default;
  };
  struct Button {
    std::string title;
    Action action = Action::startShortcutTest;
    friend bool operator==(const Button&, const Button&) = default;
  };
  /// A health report: the lines to read and the buttons that repair what they describe.
  struct Status {
    std::vector<std::string> lines;
    std::vector<Button> buttons;
    /// Drawn as a warning rather than as information.
    bool needsAttention = false;
    friend bool operator==(const Status&, const Status&) = default;
  };
  struct ShortcutTest {
    /// Starts the test, or stops it while it waits.
    Button button;
    bool isEnabled = true;
    bool isWaiting = false;
    /// The hint, the countdown, the time-out or why no test can run.
    std::string status;
    /// "⌥3"; empty until a shortcut was seen.
    std::string pressed;
    std::string outcome;
    friend bool operator==(const ShortcutTest&, const ShortcutTest&) = default;
  };

  /// What the content is made from; every reference is read at once, never kept.
  struct Inputs {
    const AppPreferencesProviding& preferences;
    bool isHUDEnabled;
    const HUDHealth& hud;
    const KeyboardAccessCondition& keyboardAccess;
    const OptionDigitHotKeyHealth& digits;
    const std::vector<SymbolicHotKeyConflict>& systemShortcutConflicts;
    const NumberMappingEntries& dockPositions;
    const ShortcutDiagnostics& diagnostics;
    LaunchAtLoginStatus launchAtLogin;
    const std::optional<std::string>& launchAtLoginError;
    const ShortcutTestSession& test;
  };

  [[nodiscard]] static GeneralSettingsContent make(const Inputs& inputs,
                                                   const Localizer& localizer);

  [[nodiscard]] const Choice& choice(ChoiceId id) const {
    return choices[static_cast<std::size_t>(id)];
  }
  [[nodiscard]] const Toggle& toggle(ToggleId id) const {
    return toggles[static_cast<std::size_t>(id)];
  }

  std::string windowTitle;
  std::string generalTabTitle;
  std::string usageTabTitle;
  std::string shortcutsHeading;
  std::string hudHeading;
  std::string animationHeading;
  std::string startupHeading;
  std::string testHeading;
  /// Indexed by `ChoiceId`.
  std::array<Choice, kChoiceCount> choices;
  /// Indexed by `ToggleId`.
  std::array<Toggle, kToggleCount> toggles;
  Status digitShortcuts;
  Status hud;
  Status launchAtLogin;
  ShortcutTest shortcutTest;

  friend bool operator==(const GeneralSettingsContent&, const GeneralSettingsContent&) = default;
};

} // namespace quenby
