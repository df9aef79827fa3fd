#include "hud/gestures/ActivationGestureRecognizer.hpp"

#include <algorithm>

namespace quenby {

ActivationGestureRecognizer::ActivationGestureRecognizer(Collaborators collaborators,
                                                         ActivationModifierPreference modifier,
                                                         HUDActivationGesturePreference gesture)
    : keyStateReader_(collaborators.keyStateReader), scheduler_(collaborators.scheduler),
      clock_(collaborators.clock), modifier_(modifier),
      gesture_(gesture), normalizer_{.keyCodes = ModifierHardwareKeyCodes::forModifier(modifier),
                                     .pressed = {},
                                     .suppressedUntilRelease = {}} {}

void ActivationGestureRecognizer::handleFlagsChanged(std::uint16_t keyCode) {
  // Most changes are other modifiers' (Shift, Command): they would normalise to nothing anyway.
  if (keyCode != normalizer_.keyCodes.left && keyCode != normalizer_.keyCodes.right) {
    return;
  }
  const bool isDown =
      keyStateReader_.readKeyState(SystemModifierKeyStateReader::kHIDSystemState, keyCode);
  const auto input = normalizer_.normalize(keyCode, isDown, clock_.now());
  if (!input) {
    return;
  }
  forgetClosedTransientHUD();
  applyLongPress(longPress_.handle(*input));
  rescheduleLongPressCheck();
  if (doubleTap_.handle(*input) && gesture_ != HUDActivationGesturePreference::longPress) {
    // The second press of a double tap must not also become a long press.
    longPressTimer_.cancel();
    longPress_.state = ModifierLongPressRecognizer::State::idle();
    if (outputs_.onStickyToggle) {
      outputs_.onStickyToggle(modifier_);
    }
  }
}

void ActivationGestureRecognizer::cancelGesturesInProgress() {
  doubleTap_.handle(ModifierInput::otherKeyDown());
  forgetClosedTransientHUD();
  applyLongPress(longPress_.handle(ModifierInput::otherKeyDown()));
  rescheduleLongPressCheck();
}

void ActivationGestureRecognizer::setActivationModifier(ActivationModifierPreference modifier) {
  if (modifier == modifier_) {
    return;
  }
  modifier_ = modifier;
  reset();
  normalizer_.keyCodes = ModifierHardwareKeyCodes::forModifier(modifier);
  suppressHeldSides();
}

void ActivationGestureRecognizer::setActivationGesture(HUDActivationGesturePreference gesture) {
  if (gesture == gesture_) {
    return;
  }
  gesture_ = gesture;
  reset();
  suppressHeldSides();
}

void ActivationGestureRecognizer::reset() {
  longPressTimer_.cancel();
  longPress_.state = ModifierLongPressRecognizer::State::idle();
  if (hudOwnedByLongPress_) {
    hudOwnedByLongPress_ = false;
    if (hudIsVisible() && outputs_.onTransientClose) {
      outputs_.onTransientClose();
    }
  }
  doubleTap_.state = ModifierDoubleTapRecognizer::State::idle();
}

void ActivationGestureRecognizer::suppressHeldSides() {
  const auto held = currentlyHeldSides();
  normalizer_.pressed = held;
  normalizer_.suppressedUntilRelease = held;
}

ModifierSideSet ActivationGestureRecognizer::currentlyHeldSides() const {
  ModifierSideSet held;
  const auto state = SystemModifierKeyStateReader::kHIDSystemState;
  if (keyStateReader_.readKeyState(state, normalizer_.keyCodes.left)) {
    held.insert(ModifierSide::left);
  }
  if (keyStateReader_.readKeyState(state, normalizer_.keyCodes.right)) {
    held.insert(ModifierSide::right);
  }
  return held;
}

bool ActivationGestureRecognizer::hudIsVisible() const {
  return outputs_.hudIsVisible && outputs_.hudIsVisible();
}

void ActivationGestureRecognizer::forgetClosedTransientHUD() {
  if (hudOwnedByLongPress_ && !hudIsVisible()) {
    hudOwnedByLongPress_ = false;
  }
}

void ActivationGestureRecognizer::applyLongPress(ModifierLongPressRecognizer::Outcome outcome) {
  using Kind = ModifierLongPressRecognizer::Outcome::Kind;
  if (outcome.kind == Kind::released) {
    if (hudOwnedByLongPress_) {
      hudOwnedByLongPress_ = false;
      if (hudIsVisible() && outputs_.onTransientClose) {
        outputs_.onTransientClose();
      }
    }
  } else if (outcome.kind == Kind::recognized) {
    longPressRecognized();
  }
}

void ActivationGestureRecognizer::longPressRecognized() {
  doubleTap_.state = ModifierDoubleTapRecognizer::State::idle();
  const bool wasVisible = hudIsVisible();
  if (outputs_.onLongPressRecognized) {
    outputs_.onLongPressRecognized(modifier_);
  }
  // A HUD already open (a sticky one) is not this press's to close.
  if (!wasVisible) {
    hudOwnedByLongPress_ = true;
    if (outputs_.onTransientOpen) {
      outputs_.onTransientOpen(modifier_);
    }
  }
}

void ActivationGestureRecognizer::rescheduleLongPressCheck() {
  // Inline test first: most events have no check pending, and this runs on each of them.
  if (!longPressTimer_.isCancelled()) {
    longPressTimer_.cancel();
  }
  if (gesture_ == HUDActivationGesturePreference::doubleTap ||
      longPress_.state.phase != ModifierLongPressRecognizer::State::Phase::pending) {
    return;
  }
  const auto delay = std::max(longPress_.state.deadline - clock_.now(), Duration::zero());
  // The token is ours and cancels on destruction, so the check never outlives the recogniser;
  // capturing only `this` keeps the task within std::function's inline storage.
  longPressTimer_ = scheduler_.scheduleAfter(delay, [this] { longPressCheckFired(); });
}

void ActivationGestureRecognizer::longPressCheckFired() {
  // It has run; only its spent registration is left to release.
  longPressTimer_.cancel();
  const auto state = longPress_.state;
  if (state.phase == ModifierLongPressRecognizer::State::Phase::pending &&
      currentlyHeldSides().contains(state.side)) {
    applyLongPress(longPress_.timerFired(clock_.now()));
    return;
  }
  // The release was lost, or the press is no longer the one the check was for.
  longPress_.state = ModifierLongPressRecognizer::State::idle();
}

} // namespace quenby
