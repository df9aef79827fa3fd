#include "hud/gestures/ModifierDoubleTapRecognizer.hpp"
#include "hud/gestures/ModifierFlagNormalizer.hpp"
#include "hud/gestures/ModifierLongPressRecognizer.hpp"

#include <chrono>
#include <gtest/gtest.h>

namespace quenby {
namespace {

using namespace std::chrono_literals;
constexpr auto kLeft = ModifierSide::left;
constexpr auto kRight = ModifierSide::right;
using Input = ModifierInput;
using TapState = ModifierDoubleTapRecognizer::State;
using PressState = ModifierLongPressRecognizer::State;
using Outcome = ModifierLongPressRecognizer::Outcome;

TEST(ModifierFlagNormalizerTest, YieldsOnlyChangesOfTheModifiersOwnSides) {
  ModifierFlagNormalizer normalizer{
      .keyCodes = ModifierHardwareKeyCodes::forModifier(ActivationModifierPreference::option),
      .pressed = {},
      .suppressedUntilRelease = {}};
  EXPECT_EQ(normalizer.normalize(59, true, 1ms), std::nullopt); // left Control
  EXPECT_EQ(normalizer.normalize(56, true, 1ms), std::nullopt); // Shift
  EXPECT_EQ(normalizer.normalize(58, true, 2ms), Input::down(kLeft, 2ms));
  EXPECT_EQ(normalizer.normalize(58, true, 3ms), std::nullopt);
  EXPECT_EQ(normalizer.normalize(61, true, 4ms), Input::down(kRight, 4ms));
  EXPECT_EQ(normalizer.normalize(58, false, 5ms), Input::up(kLeft, 5ms));

  // A suppressed side is tracked silently until its release.
  normalizer.suppressedUntilRelease.insert(kLeft);
  EXPECT_EQ(normalizer.normalize(58, true, 6ms), std::nullopt);
  EXPECT_TRUE(normalizer.pressed.contains(kLeft));
  EXPECT_EQ(normalizer.normalize(58, false, 7ms), std::nullopt);
  EXPECT_TRUE(normalizer.suppressedUntilRelease.empty());
  EXPECT_EQ(normalizer.normalize(58, true, 8ms), Input::down(kLeft, 8ms));
}

TEST(ModifierDoubleTapRecognizerTest, TheWindowRunsFromTheFirstReleaseAndIncludesItsEnd) {
  const auto secondPressAfter = [](Duration gap) {
    ModifierDoubleTapRecognizer recognizer;
    recognizer.handle(Input::down(kLeft, 0ms));
    recognizer.handle(Input::up(kLeft, 2s)); // however long the first press was held
    return recognizer.handle(Input::down(kLeft, 2s + gap));
  };
  EXPECT_EQ(secondPressAfter(300ms), kLeft);
  EXPECT_EQ(secondPressAfter(300ms + 1ns), std::nullopt);
  EXPECT_EQ(secondPressAfter(-1ns), std::nullopt);
}

TEST(ModifierDoubleTapRecognizerTest, BothTapsMustBeOnOneSideWithNothingTypedBetween) {
  ModifierDoubleTapRecognizer recognizer;
  recognizer.handle(Input::down(kLeft, 0ms));
  recognizer.handle(Input::up(kLeft, 10ms));
  // The other side starts a new first press...
  EXPECT_EQ(recognizer.handle(Input::down(kRight, 20ms)), std::nullopt);
  EXPECT_EQ(recognizer.state, TapState::firstDown(kRight, 20ms));
  recognizer.handle(Input::up(kRight, 30ms));
  // ...which a letter cancels.
  recognizer.handle(Input::otherKeyDown());
  EXPECT_EQ(recognizer.handle(Input::down(kRight, 40ms)), std::nullopt);
  recognizer.handle(Input::up(kRight, 50ms));
  EXPECT_EQ(recognizer.handle(Input::down(kRight, 60ms)), kRight);
  EXPECT_EQ(recognizer.state, TapState::idle());

  // A release of the other side while waiting, or one earlier than its press, starts over.
  recognizer.handle(Input::down(kLeft, 100ms));
  recognizer.handle(Input::up(kLeft, 90ms));
  EXPECT_EQ(recognizer.state, TapState::idle());
  recognizer.handle(Input::down(kLeft, 100ms));
  recognizer.handle(Input::up(kLeft, 110ms));
  recognizer.handle(Input::up(kRight, 120ms));
  EXPECT_EQ(recognizer.state, TapState::idle());
}

TEST(ModifierLongPressRecognizerTest, EngagesOnlyOnTheTimerAndReleasesWithItsOwnSide) {
  ModifierLongPressRecognizer recognizer;
  recognizer.handle(Input::down(kLeft, 1s));
  EXPECT_EQ(recognizer.state, PressState::pending(kLeft, 1400ms));
  EXPECT_EQ(recognizer.timerFired(1399ms), Outcome{});
  EXPECT_EQ(recognizer.timerFired(1400ms), (Outcome{Outcome::Kind::recognized, kLeft}));

  // Engaged: typing and the other side change nothing.
  EXPECT_EQ(recognizer.handle(Input::otherKeyDown()), Outcome{});
  EXPECT_EQ(recognizer.handle(Input::down(kRight, 2s)), Outcome{});
  EXPECT_EQ(recognizer.handle(Input::up(kRight, 2s)), Outcome{});
  EXPECT_EQ(recognizer.state, PressState::engaged(kLeft));
  EXPECT_EQ(recognizer.handle(Input::up(kLeft, 3s)).kind, Outcome::Kind::released);

  // Pending: a key or the release drops it.
  recognizer.handle(Input::down(kLeft, 4s));
  recognizer.handle(Input::otherKeyDown());
  EXPECT_EQ(recognizer.state, PressState::idle());
  recognizer.handle(Input::down(kLeft, 5s));
  EXPECT_EQ(recognizer.handle(Input::up(kLeft, 5s)), Outcome{});
  EXPECT_EQ(recognizer.timerFired(10s), Outcome{});
}

} // namespace
} // namespace quenby
