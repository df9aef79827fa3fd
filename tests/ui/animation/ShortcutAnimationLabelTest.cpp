#include "ui/animation/ShortcutAnimationLabel.hpp"

#include <gtest/gtest.h>

namespace quenby {
namespace {

TEST(ShortcutAnimationLabelTest, ShowsOnlyKeysTheKeyboardHas) {
  constexpr auto option = ActivationModifierPreference::option;
  constexpr auto control = ActivationModifierPreference::control;
  EXPECT_EQ(shortcutAnimationLabel(MappingSource::dock(3), option), "⌥ 3");
  EXPECT_EQ(shortcutAnimationLabel(MappingSource::dock(9), control), "⌃ 9");
  EXPECT_EQ(shortcutAnimationLabel(MappingSource::letter('K'), control), "⌃ K");
  EXPECT_EQ(shortcutAnimationLabel(MappingSource::letter('s'), option), "⌥ S");
  EXPECT_EQ(shortcutAnimationLabel(MappingSource::letter('z'), option), "⌥ Z");

  EXPECT_EQ(shortcutAnimationLabel(MappingSource::dock(10), option), std::nullopt);
  EXPECT_EQ(shortcutAnimationLabel(MappingSource::dock(0), option), std::nullopt);
  // Neither a letter nor one that upper-cases to a single A–Z: the lead byte of "ß" or "é",
  // digits, punctuation, NUL.
  for (const char letter : {'\xC3', '\xDF', '1', '@', '[', '`', '{', '\0'}) {
    EXPECT_EQ(shortcutAnimationLabel(MappingSource::letter(letter), option), std::nullopt)
        << static_cast<int>(letter);
  }
}

} // namespace
} // namespace quenby
