#pragma once

#include "data/AppPreferences.hpp"

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace quenby {

/// The system's global hot keys and keyboard shortcuts as the script sets them. It belongs to
/// the world: what another process took stays taken across relaunches.
struct SimulatedHotKeys {
  /// A system keyboard shortcut on a modifier plus a digit.
  struct SystemShortcut {
    ActivationModifierPreference modifier;
    int digit;
    std::string name;
  };

  /// Modifier and digit combinations whose registration fails, as when another process holds
  /// them exclusively.
  std::set<std::pair<ActivationModifierPreference, int>> taken;
  std::vector<SystemShortcut> systemShortcuts;
  /// What the running process has registered: digit by identifier.
  std::map<std::uint32_t, int> registered;
  /// The modifier of the most recent registration.
  ActivationModifierPreference modifier = ActivationModifierPreference::option;
  /// What the last `hotkeys` line said, so that a pass that changed nothing says nothing.
  std::optional<std::pair<ActivationModifierPreference, std::vector<int>>> lastReported;
};

} // namespace quenby
