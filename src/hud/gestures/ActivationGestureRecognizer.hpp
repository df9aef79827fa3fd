#pragma once

#include "base/MainScheduler.hpp"
#include "base/MonotonicClock.hpp"
#include "base/ObservationToken.hpp"
#include "data/AppPreferences.hpp"
#include "hud/gestures/ModifierDoubleTapRecognizer.hpp"
#include "hud/gestures/ModifierFlagNormalizer.hpp"
#include "hud/gestures/ModifierLongPressRecognizer.hpp"
#include "hud/gestures/SystemModifierKeyStateReader.hpp"

#include <functional>

namespace quenby {

/// Turns the activation modifier's presses into the HUD's two gestures: a double tap toggles a
/// sticky HUD, a long press opens a transient one that closes with the release of that press.
/// Main thread only. Nothing here allocates on the way from an event to an output, except the
/// scheduler's own bookkeeping when a long-press check is scheduled.
class ActivationGestureRecognizer {
public:
  struct Collaborators {
    const SystemModifierKeyStateReader& keyStateReader;
    /// Runs the long-press check; `clock` is the same time line.
    MainScheduler& scheduler;
    const MonotonicClock& clock;
  };

  /// What the recogniser tells and asks its owner. Every member may be left empty: an empty
  /// `hudIsVisible` means no HUD is ever visible.
  struct Outputs {
    std::function<void(ActivationModifierPreference)> onStickyToggle;
    std::function<void(ActivationModifierPreference)> onLongPressRecognized;
    std::function<void(ActivationModifierPreference)> onTransientOpen;
    std::function<void()> onTransientClose;
    std::function<bool()> hudIsVisible;
  };

  ActivationGestureRecognizer(Collaborators collaborators, ActivationModifierPreference modifier,
                              HUDActivationGesturePreference gesture);
  ActivationGestureRecognizer(const ActivationGestureRecognizer&) = delete;
  ActivationGestureRecognizer& operator=(const ActivationGestureRecognizer&) = delete;
  /// Cancels a pending long-press check, so that none can run after the recogniser is gone.
  ~ActivationGestureRecognizer() = default;

  void setOutputs(Outputs outputs) { outputs_ = std::move(outputs); }

  /// For every flags-changed event; the key's state is read from the hardware, never from the
  /// event's flags, so that left and right are told apart.
  void handleFlagsChanged(std::uint16_t keyCode);
  /// For every key-down, auto-repeats included, before the key is routed. Inline and first of
  /// all a test: almost every key-down of a session arrives with no gesture under way.
  void noteOtherKeyDown() {
    if (doubleTap_.state.phase == ModifierDoubleTapRecognizer::State::Phase::idle &&
        longPress_.state.phase != ModifierLongPressRecognizer::State::Phase::pending &&
        !hudOwnedByLongPress_ && longPressTimer_.isCancelled()) {
      return;
    }
    cancelGesturesInProgress();
  }

  /// Each forgets the gesture in progress; a side held at the change counts only after it has
  /// been released once.
  void setActivationModifier(ActivationModifierPreference modifier);
  void setActivationGesture(HUDActivationGesturePreference gesture);

  /// Forgets every gesture in progress and closes a HUD that the current long press opened. The
  /// caller decides whether held sides are suppressed afterwards (`suppressHeldSides`).
  void reset();
  /// Makes the sides held right now the pressed ones, each ignored until its next release.
  void suppressHeldSides();
  /// Left first.
  [[nodiscard]] ModifierSideSet currentlyHeldSides() const;

  [[nodiscard]] ActivationModifierPreference activationModifier() const { return modifier_; }
  [[nodiscard]] HUDActivationGesturePreference activationGesture() const { return gesture_; }
  [[nodiscard]] const ModifierFlagNormalizer& normalizer() const { return normalizer_; }
  [[nodiscard]] const ModifierDoubleTapRecognizer::State& doubleTapState() const {
    return doubleTap_.state;
  }
  [[nodiscard]] const ModifierLongPressRecognizer::State& longPressState() const {
    return longPress_.state;
  }
  [[nodiscard]] bool isLongPressCheckScheduled() const { return !longPressTimer_.isCancelled(); }

private:
  void cancelGesturesInProgress();
  [[nodiscard]] bool hudIsVisible() const;
  void forgetClosedTransientHUD();
  void applyLongPress(ModifierLongPressRecognizer::Outcome outcome);
  void longPressRecognized();
  void rescheduleLongPressCheck();
  void longPressCheckFired();

  Outputs outputs_;
  const SystemModifierKeyStateReader& keyStateReader_;
  MainScheduler& scheduler_;
  const MonotonicClock& clock_;
  ModifierDoubleTapRecognizer doubleTap_;
  ModifierLongPressRecognizer longPress_;
  bool hudOwnedByLongPress_ = false;
  ActivationModifierPreference modifier_;
  HUDActivationGesturePreference gesture_;
  ModifierFlagNormalizer normalizer_;
  // Last, so that it is cancelled before anything its check touches is destroyed.
  ObservationToken longPressTimer_;
};

} // namespace quenby
