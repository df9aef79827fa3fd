#pragma once

#include "base/Localizer.hpp"
#include "base/PropertyListValue.hpp"
#include "data/AppPreferences.hpp"

#include <cstdint>
#include <string>
#include <vector>

namespace quenby {

inline constexpr LocalizedText kSymbolicHotKeyConflictText{
    "diagnostic.hotkeys.system-shortcut-conflict",
    "%@-%lld is used by %@ in System Settings > Keyboard > Keyboard Shortcuts",
    "%1$@ is a modifier name (Option or Control), %2$lld a digit, %3$@ the name of the system "
    "shortcut. System Settings, Keyboard and Keyboard Shortcuts name the macOS settings and "
    "should match their localized names."};
inline constexpr LocalizedText kSwitchToDesktopText{
    "diagnostic.hotkeys.switch-to-desktop", "Switch to Desktop %lld",
    "The macOS shortcut that shows a numbered desktop; %lld is its number. Match the name in "
    "Keyboard Shortcuts."};
inline constexpr LocalizedText kGenericSystemShortcutText{
    "diagnostic.hotkeys.system-shortcut", "a system shortcut",
    "Stands for a macOS keyboard shortcut whose name is not known, inside a sentence."};

/// A digit that an enabled system shortcut takes for itself: the system then gets the press and
/// our hot key never does, although its registration succeeded.
struct SymbolicHotKeyConflict {
  /// The symbolic hot key ids of "Switch to Desktop 1" to "Switch to Desktop 9".
  static constexpr std::int64_t kFirstSwitchToDesktopId = 118;
  static constexpr std::int64_t kLastSwitchToDesktopId = 126;
  /// Modifier bits as the system's shortcut table stores them.
  static constexpr std::int64_t kShiftFlag = 131072;
  static constexpr std::int64_t kControlFlag = 262144;
  static constexpr std::int64_t kOptionFlag = 524288;
  static constexpr std::int64_t kCommandFlag = 1048576;

  int digit = 1;
  /// The system's number for its shortcut.
  std::int64_t symbolicHotKeyId = 0;

  /// The enabled entries of `table` (the "AppleSymbolicHotKeys" dictionary, keyed by decimal
  /// ids) that are exactly `modifier` plus a main-row digit, by digit and then id. Entries that
  /// are malformed, disabled, or use other modifiers as well are skipped.
  [[nodiscard]] static std::vector<SymbolicHotKeyConflict>
  findAll(const PropertyListValue& table, ActivationModifierPreference modifier);

  /// What takes the digit: "Switch to Desktop 3", otherwise "a system shortcut".
  [[nodiscard]] std::string takenBy(const Localizer& localizer) const;
  /// "Control-1 is used by Switch to Desktop 1 in System Settings > Keyboard > Keyboard
  /// Shortcuts", for the menu and Settings.
  [[nodiscard]] std::string message(ActivationModifierPreference modifier,
                                    const Localizer& localizer) const;

  friend bool operator==(const SymbolicHotKeyConflict&, const SymbolicHotKeyConflict&) = default;
};

} // namespace quenby
