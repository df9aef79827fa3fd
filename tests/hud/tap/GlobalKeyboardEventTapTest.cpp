#include "hud/tap/GlobalKeyboardEventTap.hpp"

#include "hud/tap/TapHarness.hpp"

#include <chrono>
#include <gtest/gtest.h>
#include <memory>

namespace quenby {
namespace {

using namespace std::chrono_literals;
using Failure = GlobalKeyboardEventTapFailure;
using Log = std::vector<std::string>;
constexpr auto kConsume = EventTapDisposition::consume;
constexpr auto kForward = EventTapDisposition::forward;

TEST(GlobalKeyboardEventTapTest, InstallsOneSessionTapAndTearsItDownOnce) {
  auto h = std::make_unique<TapHarness>();
  EXPECT_FALSE(h->tap.start());
  EXPECT_FALSE(h->tap.start());
  EXPECT_EQ(h->system.log, (Log{"create 1 0 0 0x1c00", "source", "add", "enable 1"}));
  EXPECT_TRUE(h->system.isInstalled());

  h->tap.stop();
  h->tap.stop();
  EXPECT_EQ(h->system.log.size(), 6U);
  EXPECT_EQ(h->system.log.back(), "invalidate");
  EXPECT_EQ(h->system.openHandles(), 0);
  EXPECT_FALSE(h->tap.isRunning());
}

TEST(GlobalKeyboardEventTapTest, AFailedCreationLeavesNothingInstalled) {
  auto h = std::make_unique<TapHarness>();
  h->system.refuseTap = true;
  EXPECT_EQ(h->tap.start(), GlobalKeyboardEventTapError::creationFailed);

  h->system.refuseTap = false;
  h->system.refuseSource = true;
  EXPECT_EQ(h->tap.start(), GlobalKeyboardEventTapError::creationFailed);
  EXPECT_EQ(h->system.log.back(), "invalidate");
  EXPECT_EQ(h->system.openHandles(), 0);
  EXPECT_FALSE(h->tap.isRunning());
  EXPECT_EQ(descriptionText(GlobalKeyboardEventTapError::creationFailed).english,
            "The global keyboard event tap could not be created.");
}

TEST(GlobalKeyboardEventTapTest, RecoversFromOneTimeoutUntilAnOrdinaryEventProvesIt) {
  auto h = std::make_unique<TapHarness>();
  ASSERT_FALSE(h->tap.start());
  h->system.disable(KeyboardTapEventType::tapDisabledByTimeout);
  EXPECT_TRUE(h->tap.isRunning());
  EXPECT_TRUE(h->system.isEnabled());
  EXPECT_TRUE(h->tap.isAwaitingNormalEvent());
  EXPECT_EQ(h->logger.lines, (Log{"error KeyboardEventTap: Global keyboard event tap was "
                                  "re-enabled after timeout."}));

  // A modifier change is an ordinary event: the next time-out is a first one again.
  h->release(TapHarness::kLeftOption);
  h->system.disable(KeyboardTapEventType::tapDisabledByTimeout);
  EXPECT_TRUE(h->tap.isRunning());
  EXPECT_TRUE(h->failures.empty());

  h->system.disable(KeyboardTapEventType::tapDisabledByTimeout);
  EXPECT_FALSE(h->tap.isRunning());
  EXPECT_EQ(h->failures, std::vector<Failure>{Failure::repeatedDisable});
  EXPECT_EQ(h->system.openHandles(), 0);
}

TEST(GlobalKeyboardEventTapTest, EveryOtherStopIsReportedOnceWithItsCause) {
  const auto failureAfter = [](bool timeoutFirst, bool reenableTakes) {
    auto h = std::make_unique<TapHarness>();
    h->system.reenableTakes = reenableTakes;
    EXPECT_FALSE(h->tap.start());
    if (timeoutFirst) {
      h->system.disable(KeyboardTapEventType::tapDisabledByTimeout);
    }
    h->system.disable(KeyboardTapEventType::tapDisabledByUserInput);
    // A late notice, as if still in flight: the stop has been reported already.
    h->tap.handle({KeyboardTapEventType::tapDisabledByUserInput, 0, false, 0});
    EXPECT_FALSE(h->tap.isRunning());
    EXPECT_EQ(h->failures.size(), 1U);
    return h->failures.front();
  };
  EXPECT_EQ(failureAfter(false, true), Failure::disabledByUserInput);
  EXPECT_EQ(failureAfter(true, true), Failure::repeatedDisable);
  EXPECT_EQ(failureAfter(true, false), Failure::timeoutRecoveryFailed);

  // A restart may report again.
  auto h = std::make_unique<TapHarness>();
  for (int round = 0; round < 2; ++round) {
    ASSERT_FALSE(h->tap.start());
    h->system.disable(KeyboardTapEventType::tapDisabledByUserInput);
  }
  EXPECT_EQ(h->failures.size(), 2U);
}

TEST(GlobalKeyboardEventTapTest, ASwallowedKeyDownTakesItsRepeatsAndKeyUpAlong) {
  auto h = std::make_unique<TapHarness>();
  ASSERT_FALSE(h->tap.start());
  h->router.consumed.set(0);

  // Consumed while the HUD was open, released after it closed.
  h->presenter.visible = true;
  EXPECT_EQ(h->system.keyDown(0), kConsume);
  h->presenter.visible = false;
  EXPECT_EQ(h->system.keyDown(0, 0, true), kConsume);
  EXPECT_EQ(h->system.keyUp(0), kConsume);
  EXPECT_EQ(h->system.keyUp(0), kForward);

  // A key that passed passes on its way up; its repeats never reach the routing.
  EXPECT_EQ(h->system.keyDown(1), kForward);
  const int calls = h->router.calls;
  EXPECT_EQ(h->system.keyDown(1, 0, true), kForward);
  EXPECT_EQ(h->router.calls, calls);
  EXPECT_EQ(h->system.keyUp(1), kForward);

  // With the HUD hidden the key is a hidden shortcut's; the settings key is remembered as such.
  EXPECT_EQ(h->system.keyDown(0, 0x80000), kConsume);
  EXPECT_TRUE(h->tap.hiddenShortcutKeyCodes().contains(0));
  EXPECT_EQ(h->router.last.flags, 0x80000U);
  h->presenter.visible = true;
  EXPECT_EQ(h->system.keyDown(TapKeyDownRouter::kSettingsKey, 0x100000), kConsume);
  EXPECT_TRUE(h->tap.settingsShortcutKeyCodes().contains(TapKeyDownRouter::kSettingsKey));
  EXPECT_FALSE(h->tap.hiddenShortcutKeyCodes().contains(TapKeyDownRouter::kSettingsKey));

  // Stopping forgets them all.
  h->tap.stop();
  EXPECT_TRUE(h->tap.consumedKeyCodes().empty());
  EXPECT_TRUE(h->tap.settingsShortcutKeyCodes().empty());
}

TEST(GlobalKeyboardEventTapTest, WithTheHUDHiddenOnlyTheActivationModifierAloneIsRouted) {
  auto h = std::make_unique<TapHarness>();
  ASSERT_FALSE(h->tap.start());
  h->router.consumed.set(0);
  constexpr std::uint64_t kShift = 0x20000;
  constexpr std::uint64_t kControl = 0x40000;
  constexpr std::uint64_t kOption = 0x80000;
  constexpr std::uint64_t kCommand = 0x100000;
  for (const std::uint64_t flags :
       {kOption | kShift, kOption | kCommand, kControl, kShift, std::uint64_t{0}}) {
    EXPECT_EQ(h->system.keyDown(0, flags), kForward) << flags;
  }
  EXPECT_EQ(h->router.calls, 0);
  // Caps Lock and the device-dependent side bits do not count.
  EXPECT_EQ(h->system.keyDown(0, kOption | 0x10000 | 0x20), kConsume);
  h->system.keyUp(0);

  h->preferences.setActivationModifier(ActivationModifierPreference::control);
  EXPECT_EQ(h->system.keyDown(0, kOption), kForward);
  EXPECT_EQ(h->system.keyDown(0, kControl), kConsume);
  h->system.keyUp(0);
  // While the HUD is up the routing sees every key: there Shift-A is A.
  h->presenter.visible = true;
  EXPECT_EQ(h->system.keyDown(0, kShift), kConsume);
}

TEST(GlobalKeyboardEventTapTest, WithoutAPanelNoKeyIsRouted) {
  auto h = std::make_unique<TapHarness>();
  h->tap.attach(nullptr);
  ASSERT_FALSE(h->tap.start());
  h->router.consumed.set(0);
  EXPECT_EQ(h->system.keyDown(0), kForward);
  EXPECT_EQ(h->router.calls, 0);
}

TEST(GlobalKeyboardEventTapTest, ModifierGesturesDriveThePanelAndAlwaysPass) {
  auto h = std::make_unique<TapHarness>();
  std::vector<ActivationModifierPreference> doubleTaps;
  std::vector<ActivationModifierPreference> longPresses;
  h->tap.setOnSelectedModifierDoubleTap([&](auto modifier) { doubleTaps.push_back(modifier); });
  h->tap.setOnSelectedModifierLongPress([&](auto modifier) { longPresses.push_back(modifier); });
  ASSERT_FALSE(h->tap.start());

  const auto doubleTap = [&] {
    for (int tap = 0; tap < 2; ++tap) {
      h->keys.held.set(TapHarness::kLeftOption);
      EXPECT_EQ(h->system.flagsChanged(TapHarness::kLeftOption), kForward);
      h->release(TapHarness::kLeftOption);
      h->scheduler.advanceBy(100ms);
    }
  };
  doubleTap();
  EXPECT_TRUE(h->presenter.visible);
  EXPECT_EQ(h->metrics.begun, 1);
  doubleTap();
  EXPECT_FALSE(h->presenter.visible);
  EXPECT_EQ(doubleTaps.size(), 2U);

  h->press(TapHarness::kRightOption);
  h->scheduler.advanceBy(400ms);
  EXPECT_TRUE(h->presenter.visible);
  EXPECT_EQ(h->metrics.begun, 2);
  h->release(TapHarness::kRightOption);
  EXPECT_FALSE(h->presenter.visible);
  EXPECT_EQ(longPresses, std::vector{ActivationModifierPreference::option});
}

TEST(GlobalKeyboardEventTapTest, AModifierHeldAcrossARestartOrAPreferenceChangeWaitsForRelease) {
  auto h = std::make_unique<TapHarness>();
  ASSERT_FALSE(h->tap.start());
  h->press(TapHarness::kLeftOption);
  h->tap.stop();
  ASSERT_FALSE(h->tap.start());
  h->router.consumed.set(0);
  EXPECT_EQ(h->system.keyDown(0, 0x80000), kForward);
  EXPECT_EQ(h->router.calls, 0);
  h->release(TapHarness::kLeftOption);
  h->system.keyUp(0);
  EXPECT_EQ(h->system.keyDown(0, 0x80000), kConsume);

  h->press(TapHarness::kLeftControl);
  h->preferences.setActivationModifier(ActivationModifierPreference::control);
  h->preferences.setHUDActivationGesture(HUDActivationGesturePreference::longPress);
  EXPECT_EQ(h->tap.gestures().activationModifier(), ActivationModifierPreference::control);
  EXPECT_EQ(h->tap.gestures().activationGesture(), HUDActivationGesturePreference::longPress);
  h->scheduler.advanceBy(1s);
  EXPECT_FALSE(h->presenter.visible);
  h->release(TapHarness::kLeftControl);
  h->press(TapHarness::kLeftControl);
  h->scheduler.advanceBy(400ms);
  EXPECT_TRUE(h->presenter.visible);
}

} // namespace
} // namespace quenby
