#include "hud/gestures/ActivationGestureRecognizer.hpp"

#include "base/ManualScheduler.hpp"
#include "support/ScriptedModifierKeyState.hpp"

#include <chrono>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace quenby {
namespace {

using namespace std::chrono_literals;
using Gesture = HUDActivationGesturePreference;
using Modifier = ActivationModifierPreference;
constexpr std::uint16_t kLeftOption = 58;
constexpr std::uint16_t kRightOption = 61;
constexpr std::uint16_t kLeftControl = 59;

/// The recogniser with a HUD that the outputs open and close, and a log of those outputs.
struct Harness {
  explicit Harness(Gesture gesture = Gesture::both)
      : recognizer(collaborators(), Modifier::option, gesture) {
    recognizer.setOutputs({.onStickyToggle =
                               [this](Modifier) {
                                 log.push_back("toggle");
                                 hudVisible = !hudVisible;
                               },
                           .onLongPressRecognized = [this](Modifier) { log.push_back("long"); },
                           .onTransientOpen =
                               [this](Modifier) {
                                 log.push_back("open");
                                 hudVisible = true;
                               },
                           .onTransientClose =
                               [this] {
                                 log.push_back("close");
                                 hudVisible = false;
                               },
                           .hudIsVisible = [this] { return hudVisible; }});
  }
  ActivationGestureRecognizer::Collaborators collaborators() {
    return {.keyStateReader = keys, .scheduler = scheduler, .clock = scheduler};
  }
  void press(std::uint16_t keyCode) {
    keys.held.set(keyCode);
    recognizer.handleFlagsChanged(keyCode);
  }
  void release(std::uint16_t keyCode) {
    keys.held.reset(keyCode);
    recognizer.handleFlagsChanged(keyCode);
  }
  void tap(std::uint16_t keyCode) {
    press(keyCode);
    scheduler.advanceBy(50ms);
    release(keyCode);
    scheduler.advanceBy(100ms);
  }

  ManualScheduler scheduler;
  ScriptedModifierKeyState keys;
  ActivationGestureRecognizer recognizer;
  bool hudVisible = false;
  std::vector<std::string> log;
};

using Log = std::vector<std::string>;

TEST(ActivationGestureRecognizerTest, TheGesturePreferenceChoosesWhatCounts) {
  // With both, the held second press of a double tap is not also a long press.
  Harness both;
  both.tap(kLeftOption);
  both.press(kLeftOption);
  EXPECT_FALSE(both.recognizer.isLongPressCheckScheduled());
  both.scheduler.advanceBy(2s);
  EXPECT_EQ(both.log, (Log{"toggle"}));

  Harness doubleTap(Gesture::doubleTap);
  doubleTap.press(kLeftOption);
  EXPECT_FALSE(doubleTap.recognizer.isLongPressCheckScheduled());
  doubleTap.scheduler.advanceBy(2s);
  EXPECT_TRUE(doubleTap.log.empty());

  Harness longPress(Gesture::longPress);
  longPress.tap(kLeftOption);
  longPress.tap(kLeftOption);
  EXPECT_TRUE(longPress.log.empty());
}

} // namespace
} // namespace quenby
