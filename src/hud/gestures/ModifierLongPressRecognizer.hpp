#pragma once

#include "hud/gestures/ModifierInput.hpp"

#include <chrono>

namespace quenby {

/// Recognises one side held for `threshold`. The recogniser only keeps the deadline; whoever owns
/// it asks `timerFired` once the deadline has passed. An engaged press stays engaged while other
/// keys are typed, until that side is released.
struct ModifierLongPressRecognizer {
  struct State {
    enum class Phase : std::uint8_t { idle, pending, engaged };

    Phase phase = Phase::idle;
    ModifierSide side = ModifierSide::left;
    /// Meaningful for `pending` only: the press instant plus `threshold`.
    Duration deadline{};

    [[nodiscard]] static constexpr State idle() { return {}; }
    [[nodiscard]] static constexpr State pending(ModifierSide side, Duration deadline) {
      return {Phase::pending, side, deadline};
    }
    [[nodiscard]] static constexpr State engaged(ModifierSide side) {
      return {Phase::engaged, side, {}};
    }

    friend constexpr bool operator==(const State&, const State&) = default;
  };

  struct Outcome {
    enum class Kind : std::uint8_t { nothing, recognized, released };

    Kind kind = Kind::nothing;
    /// Meaningful for `recognized` only.
    ModifierSide side = ModifierSide::left;

    friend constexpr bool operator==(const Outcome&, const Outcome&) = default;
  };

  static constexpr Duration kProductionThreshold = std::chrono::milliseconds(400);

  Duration threshold = kProductionThreshold;
  State state;

  /// Never answers `recognized`: only the timer engages a press.
  Outcome handle(const ModifierInput& input);
  Outcome timerFired(Duration now);
};

} // namespace quenby
