#include "data/WindowPlacementSnapshot.hpp"

#include "data/WindowPlacementSnapshotProviding.hpp"

#include <gtest/gtest.h>

namespace quenby {
namespace {

constexpr Rect kLeft{0, 0, 1440, 900};
constexpr Rect kRight{1440, -180, 1920, 1080};

TEST(WindowPlacementSnapshotTest, PicksTheScreenUnderTheMouseOrThePrimaryOne) {
  WindowPlacementSnapshot snapshot{{kLeft, kRight}, kRight, {2000, 500}};
  EXPECT_EQ(snapshot.targetFrame(WindowPlacementPreference::displayUnderMouse), kRight);
  EXPECT_EQ(snapshot.targetFrame(ShortcutAnimationDisplayPreference::displayUnderMouse), kRight);
  // The screen at the origin beats the system's main screen.
  EXPECT_EQ(snapshot.targetFrame(WindowPlacementPreference::mainDisplay), kLeft);
  EXPECT_EQ(snapshot.targetFrame(ShortcutAnimationDisplayPreference::mainDisplay), kLeft);

  // The left screen's maximum x edge belongs to the right screen.
  snapshot.mouseLocation = {1440, 450};
  EXPECT_EQ(snapshot.targetFrame(WindowPlacementPreference::displayUnderMouse), kRight);
  snapshot.mouseLocation = {0, 0};
  EXPECT_EQ(snapshot.targetFrame(WindowPlacementPreference::displayUnderMouse), kLeft);
  // Off every screen (in the gap below the left one): the primary display.
  snapshot.mouseLocation = {3360, -180};
  EXPECT_EQ(snapshot.targetFrame(WindowPlacementPreference::displayUnderMouse), kLeft);
}

TEST(WindowPlacementSnapshotTest, FallsBackToMainThenFirstThenAFixedFrame) {
  constexpr Rect kOther{-1920, 0, 1920, 1080};
  WindowPlacementSnapshot snapshot{{kRight, kOther}, kOther, {5000, 5000}};
  EXPECT_EQ(snapshot.targetFrame(WindowPlacementPreference::displayUnderMouse), kOther);
  snapshot.mainFrame.reset();
  EXPECT_EQ(snapshot.targetFrame(WindowPlacementPreference::mainDisplay), kRight);
  snapshot.screenFrames.clear();
  EXPECT_EQ(snapshot.targetFrame(WindowPlacementPreference::displayUnderMouse),
            (Rect{0, 0, 1280, 800}));
  snapshot.mainFrame = kOther;
  EXPECT_EQ(snapshot.targetFrame(WindowPlacementPreference::mainDisplay), kOther);
}

TEST(WindowPlacementSnapshotTest, InertProviderAndEquality) {
  const auto snapshot = InertWindowPlacementSnapshotProvider().snapshot();
  EXPECT_EQ(snapshot, (WindowPlacementSnapshot{{kLeft}, kLeft, {720, 450}}));
  EXPECT_NE(snapshot, (WindowPlacementSnapshot{{kLeft}, std::nullopt, {720, 450}}));
  EXPECT_NE(snapshot, (WindowPlacementSnapshot{{kLeft, kLeft}, kLeft, {720, 450}}));
  EXPECT_NE(snapshot, (WindowPlacementSnapshot{{kLeft}, kLeft, {720, 451}}));
}

} // namespace
} // namespace quenby
