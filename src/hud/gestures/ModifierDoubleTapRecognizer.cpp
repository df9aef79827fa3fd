#include "hud/gestures/ModifierDoubleTapRecognizer.hpp"

namespace quenby {

std::optional<ModifierSide> ModifierDoubleTapRecognizer::handle(const ModifierInput& input) {
  using Kind = ModifierInput::Kind;
  using Phase = State::Phase;
  if (input.kind == Kind::otherKeyDown) {
    state = State::idle();
    return std::nullopt;
  }
  const bool sameSide = input.side == state.side;
  switch (state.phase) {
  case Phase::idle:
    if (input.kind == Kind::down) {
      state = State::firstDown(input.side, input.at);
    }
    return std::nullopt;
  case Phase::firstDown:
    if (input.kind == Kind::down) {
      if (!sameSide) {
        state = State::firstDown(input.side, input.at);
      }
    } else if (!sameSide || input.at < state.at) {
      // A release that runs backwards in time can only come from a confused clock: start over.
      state = State::idle();
    } else {
      state = State::awaitingSecondDown(input.side, input.at);
    }
    return std::nullopt;
  case Phase::awaitingSecondDown:
    if (input.kind == Kind::up) {
      if (!sameSide) {
        state = State::idle();
      }
      return std::nullopt;
    }
    if (!sameSide) {
      state = State::firstDown(input.side, input.at);
    } else if (input.at < state.at) {
      state = State::idle();
    } else if (input.at - state.at <= maximumInterval) {
      state = State::idle();
      return input.side;
    } else {
      state = State::firstDown(input.side, input.at);
    }
    return std::nullopt;
  }
  return std::nullopt;
}

} // namespace quenby
