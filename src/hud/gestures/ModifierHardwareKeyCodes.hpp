#pragma once

#include "data/AppPreferences.hpp"

#include <cstdint>

namespace quenby {

/// The virtual key codes of a modifier's two physical keys.
struct ModifierHardwareKeyCodes {
  std::uint16_t left;
  std::uint16_t right;

  [[nodiscard]] static constexpr ModifierHardwareKeyCodes
  forModifier(ActivationModifierPreference modifier) {
    return modifier == ActivationModifierPreference::control ? ModifierHardwareKeyCodes{59, 62}
                                                             : ModifierHardwareKeyCodes{58, 61};
  }

  friend constexpr bool operator==(ModifierHardwareKeyCodes, ModifierHardwareKeyCodes) = default;
};

} // namespace quenby
