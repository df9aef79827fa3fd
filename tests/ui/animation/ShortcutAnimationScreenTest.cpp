#include "ui/animation/ShortcutAnimationScreen.hpp"

#include <gtest/gtest.h>
#include <vector>

namespace quenby {
namespace {

using Display = ShortcutAnimationDisplayPreference;

const ShortcutAnimationScreen kPrimary{
    .frame = {0, 0, 1440, 900}, .visibleFrame = {0, 0, 1440, 875}, .isMain = false};
// To the right and lower, with the Dock on its left and the keyboard focus.
const ShortcutAnimationScreen kSecondary{
    .frame = {1440, -180, 1920, 1080}, .visibleFrame = {1520, -180, 1840, 1055}, .isMain = true};

TEST(ShortcutAnimationScreenTest, PicksTheVisibleFrameUnderTheMouseOrOfTheMainScreen) {
  const std::vector screens{kPrimary, kSecondary};
  EXPECT_EQ(ShortcutAnimationScreen::targetFrame(screens, {2000, 0}, Display::displayUnderMouse),
            kSecondary.visibleFrame);
  EXPECT_EQ(ShortcutAnimationScreen::targetFrame(screens, {100, 100}, Display::displayUnderMouse),
            kPrimary.visibleFrame);
  // The main screen follows focus, not the origin.
  EXPECT_EQ(ShortcutAnimationScreen::targetFrame(screens, {100, 100}, Display::mainDisplay),
            kSecondary.visibleFrame);
  // In the gap below the primary screen, off every frame: the main screen.
  EXPECT_EQ(ShortcutAnimationScreen::targetFrame(screens, {100, -50}, Display::displayUnderMouse),
            kSecondary.visibleFrame);
  // A pointer in the menu bar is on the screen although outside its visible frame.
  EXPECT_EQ(ShortcutAnimationScreen::targetFrame(screens, {100, 890}, Display::displayUnderMouse),
            kPrimary.visibleFrame);
}

TEST(ShortcutAnimationScreenTest, FallsBackToTheFirstScreenThenToNothing) {
  auto secondary = kSecondary;
  secondary.isMain = false;
  const std::vector screens{secondary, kPrimary};
  EXPECT_EQ(ShortcutAnimationScreen::targetFrame(screens, {-5, -5}, Display::displayUnderMouse),
            secondary.visibleFrame);
  EXPECT_EQ(ShortcutAnimationScreen::targetFrame({}, {0, 0}, Display::mainDisplay), std::nullopt);
}

} // namespace
} // namespace quenby
