#pragma once

#include "base/MonotonicClock.hpp"
#include "hud/gestures/ModifierSide.hpp"

#include <cstdint>

namespace quenby {

/// One step of the activation modifier as the gesture recognisers see it: a side pressed or
/// released at an instant of the monotonic clock, or some other key going down.
struct ModifierInput {
  enum class Kind : std::uint8_t { down, up, otherKeyDown };

  Kind kind = Kind::otherKeyDown;
  /// Meaningless for `otherKeyDown`.
  ModifierSide side = ModifierSide::left;
  /// Meaningless for `otherKeyDown`.
  Duration at{};

  [[nodiscard]] static constexpr ModifierInput down(ModifierSide side, Duration at) {
    return {Kind::down, side, at};
  }
  [[nodiscard]] static constexpr ModifierInput up(ModifierSide side, Duration at) {
    return {Kind::up, side, at};
  }
  [[nodiscard]] static constexpr ModifierInput otherKeyDown() { return {}; }

  friend constexpr bool operator==(const ModifierInput&, const ModifierInput&) = default;
};

} // namespace quenby
