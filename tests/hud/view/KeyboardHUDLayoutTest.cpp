#include "hud/view/KeyboardHUDLayout.hpp"

#include <gtest/gtest.h>

namespace quenby {
namespace {

constexpr KeyboardHUDLayout::Metrics kSmall{1.0};
constexpr KeyboardHUDLayout::Metrics kLarge{1.5};

Rect times(Rect rect, double factor) {
  return {rect.x * factor, rect.y * factor, rect.width * factor, rect.height * factor};
}

TEST(KeyboardHUDLayoutTest, TheKeyboardIsItsWidestRowByFourRowsWithTheirGaps) {
  EXPECT_EQ(KeyboardHUDLayout::rows().size(), 4U);
  EXPECT_DOUBLE_EQ(KeyboardHUDLayout::rowWidth(KeyboardHUDLayout::rows()[0]), 604);
  EXPECT_DOUBLE_EQ(KeyboardHUDLayout::rowWidth(KeyboardHUDLayout::rows()[1]), 699);
  EXPECT_DOUBLE_EQ(KeyboardHUDLayout::rowWidth(KeyboardHUDLayout::rows()[3]), 540);
  EXPECT_DOUBLE_EQ(KeyboardHUDLayout::keyboardWidth(), 699);
  EXPECT_DOUBLE_EQ(KeyboardHUDLayout::keyboardHeight(), 286);
  EXPECT_EQ(KeyboardHUDLayout::canvasSize(), (Size{799, 386}));
}

TEST(KeyboardHUDLayoutTest, LargeScalesEveryLengthByOneAndAHalf) {
  EXPECT_DOUBLE_EQ(KeyboardHUDLayout::scale(HUDSizePreference::standard), 1.25);
  EXPECT_EQ(KeyboardHUDLayout::metrics(HUDSizePreference::large).scale, 1.5);
  EXPECT_EQ(KeyboardHUDLayout::contentSize(HUDSizePreference::large), (Size{1230, 585}));
  EXPECT_EQ(KeyboardHUDLayout::canvasFrame(kLarge),
            times(KeyboardHUDLayout::canvasFrame(kSmall), 1.5));
  EXPECT_EQ(KeyboardHUDLayout::backgroundFrame(kLarge),
            times(KeyboardHUDLayout::backgroundFrame(kSmall), 1.5));
  EXPECT_EQ(KeyboardHUDLayout::settingsButtonFrame(kLarge),
            times(KeyboardHUDLayout::settingsButtonFrame(kSmall), 1.5));
  for (const auto& row : KeyboardHUDLayout::rows()) {
    for (const auto key : row.keys) {
      EXPECT_EQ(KeyboardHUDLayout::keyFrame(key, kLarge),
                times(*KeyboardHUDLayout::keyFrame(key, kSmall), 1.5));
    }
  }
}

TEST(KeyboardHUDLayoutTest, HitTestingTakesAKeysTopLeftEdgesButNotItsBottomRightOnes) {
  EXPECT_EQ(KeyboardHUDLayout::hitTest({60.5, 52}, kSmall), HUDKey::number(1));
  EXPECT_EQ(KeyboardHUDLayout::hitTest({120.49, 115.99}, kSmall), HUDKey::number(1));
  // The gap between 1 and 2, and the gap under the digit row.
  EXPECT_EQ(KeyboardHUDLayout::hitTest({120.5, 60}, kSmall), std::nullopt);
  EXPECT_EQ(KeyboardHUDLayout::hitTest({128.49, 60}, kSmall), std::nullopt);
  EXPECT_EQ(KeyboardHUDLayout::hitTest({128.5, 60}, kSmall), HUDKey::number(2));
  EXPECT_EQ(KeyboardHUDLayout::hitTest({90, 116}, kSmall), std::nullopt);
  EXPECT_EQ(KeyboardHUDLayout::hitTest({90, 126}, kSmall), HUDKey::letter('Q'));
  // The indent of a row, the padding, and the settings corner hold no key.
  EXPECT_EQ(KeyboardHUDLayout::hitTest({70, 150}, kSmall), std::nullopt);
  EXPECT_EQ(KeyboardHUDLayout::hitTest({50, 60}, kSmall), std::nullopt);
  EXPECT_EQ(KeyboardHUDLayout::hitTest({760, 45}, kSmall), std::nullopt);
  // At large, the same places scaled.
  EXPECT_EQ(KeyboardHUDLayout::hitTest({132.5 * 1.5, 274 * 1.5}, kLarge), HUDKey::letter('Z'));
  EXPECT_EQ(KeyboardHUDLayout::hitTest({120.5 * 1.5, 60 * 1.5}, kLarge), std::nullopt);
  // Z's unscaled corner lies on Q at large.
  EXPECT_EQ(KeyboardHUDLayout::hitTest({132.5, 274}, kLarge), HUDKey::letter('Q'));
}

} // namespace
} // namespace quenby
