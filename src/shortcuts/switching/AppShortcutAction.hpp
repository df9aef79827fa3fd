#pragma once

#include "shortcuts/mapping/AppMapping.hpp"
#include "shortcuts/switching/AppSwitchConfigurationFailure.hpp"
#include "shortcuts/switching/FrontmostApplicationProviding.hpp"

#include <optional>

namespace quenby {

/// What a modifier shortcut does with its mapping: report a mapping that cannot work (no hide, no
/// animation, no usage record), hide the mapped application because it is already in front and
/// the user asked for that, or play the animation and submit the switch. A pick on the HUD always
/// switches and does not ask.
struct AppShortcutAction {
  enum class Kind { reportFailure, hide, switchToApplication };

  Kind kind;
  /// Present exactly for `reportFailure`.
  std::optional<AppSwitchConfigurationFailure> failure;

  /// `hidesFrontmostApplication` is the user's preference. The front application is asked only
  /// when it matters; bundle identifiers compare exactly, as Launch Services registers them.
  [[nodiscard]] static AppShortcutAction decide(const AppMapping& mapping,
                                                bool hidesFrontmostApplication,
                                                const FrontmostApplicationProviding& frontmost);

  friend bool operator==(const AppShortcutAction&, const AppShortcutAction&) = default;
};

} // namespace quenby
