#pragma once

#include "hud/gestures/ModifierInput.hpp"

#include <chrono>
#include <optional>

namespace quenby {

/// Recognises two presses of the same side, the second no later than `maximumInterval` after the
/// first was released (the boundary included). How long the first press was held doesn't matter.
struct ModifierDoubleTapRecognizer {
  struct State {
    enum class Phase : std::uint8_t { idle, firstDown, awaitingSecondDown };

    Phase phase = Phase::idle;
    ModifierSide side = ModifierSide::left;
    /// The first press for `firstDown`, its release for `awaitingSecondDown`.
    Duration at{};

    [[nodiscard]] static constexpr State idle() { return {}; }
    [[nodiscard]] static constexpr State firstDown(ModifierSide side, Duration at) {
      return {Phase::firstDown, side, at};
    }
    [[nodiscard]] static constexpr State awaitingSecondDown(ModifierSide side, Duration at) {
      return {Phase::awaitingSecondDown, side, at};
    }

    friend constexpr bool operator==(const State&, const State&) = default;
  };

  static constexpr Duration kProductionInterval = std::chrono::milliseconds(300);

  Duration maximumInterval = kProductionInterval;
  State state;

  /// The side that has just completed a double tap, if any.
  std::optional<ModifierSide> handle(const ModifierInput& input);
};

} // namespace quenby
