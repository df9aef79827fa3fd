#pragma once

#include "data/AppPreferences.hpp"
#include "shortcuts/mapping/MappingSource.hpp"

#include <optional>
#include <string>

namespace quenby {

/// The keys of a shortcut as the animation shows them: the modifier's symbol, a blank, and the
/// digit or the upper-case letter ("⌥ 3", "⌃ K"). None for what no single key on the keyboard
/// produces: a Dock position outside 1–9, or a letter outside A–Z.
[[nodiscard]] std::optional<std::string>
shortcutAnimationLabel(const MappingSource& source, ActivationModifierPreference modifier);

} // namespace quenby
