#pragma once

#include "data/AppPreferences.hpp"

#include <cstdint>

namespace quenby {

/// The modifier bits of a keyboard event's flags, as the system sets them.
struct KeyboardEventFlags {
  /// The bits that count: Caps Lock below them and the device-dependent side bits are ignored.
  static constexpr std::uint64_t kModifierMask = 0xFFFE0000;
  static constexpr std::uint64_t kControl = 0x40000;
  static constexpr std::uint64_t kOption = 0x80000;
  static constexpr std::uint64_t kCommand = 0x100000;

  [[nodiscard]] static constexpr std::uint64_t of(ActivationModifierPreference modifier) {
    return modifier == ActivationModifierPreference::control ? kControl : kOption;
  }
};

} // namespace quenby
