#include "hud/gestures/ModifierLongPressRecognizer.hpp"

namespace quenby {

ModifierLongPressRecognizer::Outcome
ModifierLongPressRecognizer::handle(const ModifierInput& input) {
  using Kind = ModifierInput::Kind;
  using Phase = State::Phase;
  switch (input.kind) {
  case Kind::down:
    if (state.phase != Phase::engaged) {
      state = State::pending(input.side, input.at + threshold);
    }
    return {};
  case Kind::up:
    if (state.phase == Phase::idle || input.side != state.side) {
      return {};
    }
    if (state.phase == Phase::engaged) {
      state = State::idle();
      return {Outcome::Kind::released};
    }
    state = State::idle();
    return {};
  case Kind::otherKeyDown:
    if (state.phase == Phase::pending) {
      state = State::idle();
    }
    return {};
  }
  return {};
}

ModifierLongPressRecognizer::Outcome ModifierLongPressRecognizer::timerFired(Duration now) {
  if (state.phase != State::Phase::pending || now < state.deadline) {
    return {};
  }
  state = State::engaged(state.side);
  return {Outcome::Kind::recognized, state.side};
}

} // namespace quenby
