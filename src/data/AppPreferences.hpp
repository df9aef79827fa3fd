#pragma once

#include <cstdint>

namespace quenby {

// The raw values, defaults and user-defaults keys of these live in AppPreferenceTable.hpp; each
// enumeration's cases count from zero in the order the settings page lists them.

/// Which screen a window appears on.
enum class WindowPlacementPreference : std::uint8_t { mainDisplay, displayUnderMouse };
/// Which screen the shortcut animation plays on; the cases mean what `WindowPlacementPreference`'s
/// do.
enum class ShortcutAnimationDisplayPreference : std::uint8_t { mainDisplay, displayUnderMouse };
enum class HUDSizePreference : std::uint8_t { small, standard, large };
enum class HUDThemePreference : std::uint8_t { light, dark, system };
/// The HUD's opacity in percent; the raw values are integers.
enum class HUDOpacityPreference : std::uint8_t { sixty, seventy, eighty, ninety, oneHundred };
enum class HUDActivationGesturePreference : std::uint8_t { doubleTap, longPress, both };
/// The modifier of every shortcut and of the HUD gesture.
enum class ActivationModifierPreference : std::uint8_t { option, control };

} // namespace quenby
