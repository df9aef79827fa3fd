#include "hud/routing/KeyboardEventTranslator.hpp"

#include <gtest/gtest.h>
#include <map>

namespace quenby {
namespace {

using Typing = std::map<std::uint16_t, std::u16string>;

TypedKeyText typedBy(const Typing& typing, std::uint16_t keyCode) {
  TypedKeyText text;
  if (const auto found = typing.find(keyCode); found != typing.end()) {
    for (const char16_t unit : found->second) {
      text.units[text.length++] = unit;
    }
  }
  return text;
}

struct LayoutTable final : KeyboardCharacterTranslating {
  [[nodiscard]] TypedKeyText character(std::uint16_t keyCode) const override {
    return typedBy(typed, keyCode);
  }
  [[nodiscard]] TypedKeyText asciiCapableCharacter(std::uint16_t keyCode) const override {
    return typedBy(asciiCapable, keyCode);
  }
  Typing typed;
  Typing asciiCapable;
};

TEST(KeyboardEventTranslatorTest, LettersFollowTheLayoutAndDigitsTheirPlace) {
  LayoutTable azerty;
  azerty.typed = {{12, u"a"}, {0, u"q"}, {18, u"&"}, {19, u"é"}, {53, u"\x1b"}};
  const KeyboardEventTranslator translator(azerty);
  EXPECT_EQ(translator.translate(12), HUDKey::letter('A'));
  EXPECT_EQ(translator.translate(0), HUDKey::letter('Q'));
  EXPECT_EQ(translator.translate(18), HUDKey::number(1));
  EXPECT_EQ(translator.translate(19), HUDKey::number(2));
  EXPECT_EQ(translator.translate(53), HUDKey::escape());
  // Keys the layout leaves alone: the US letter, the place's digit, nothing for the 0 key.
  EXPECT_EQ(translator.translate(1), HUDKey::letter('S'));
  EXPECT_EQ(translator.translate(25), HUDKey::number(9));
  EXPECT_EQ(translator.translate(29), HUDKey::other());
  EXPECT_EQ(translator.translate(500), HUDKey::other());
}

TEST(KeyboardEventTranslatorTest, OnlyOneCharacterThatUpperCasesToALatinLetterCounts) {
  LayoutTable layout;
  layout.typed = {{0, u"ф"}, {34, u"ı"}, {1, u"ab"}, {2, u"ß"}, {11, u"B"}, {3, u"\xd83d\xde00"}};
  const KeyboardEventTranslator translator(layout);
  // A Cyrillic letter falls back to the US place; so do two characters, or one that is not a
  // letter at all.
  EXPECT_EQ(translator.translate(0), HUDKey::letter('A'));
  EXPECT_EQ(translator.translate(1), HUDKey::letter('S'));
  EXPECT_EQ(translator.translate(2), HUDKey::letter('D'));
  EXPECT_EQ(translator.translate(3), HUDKey::letter('F'));
  EXPECT_EQ(translator.translate(11), HUDKey::letter('B'));
  // The Turkish dotless i is I wherever its key is.
  EXPECT_EQ(translator.translate(34), HUDKey::letter('I'));
}

TEST(KeyboardEventTranslatorTest, ALayoutWithoutLatinLettersDefersToTheUsersLatinLayout) {
  LayoutTable russianOverDvorak;
  russianOverDvorak.typed = {{0, u"ф"}, {1, u"ы"}, {12, u"й"}, {18, u"1"}};
  russianOverDvorak.asciiCapable = {{1, u"o"}, {12, u"'"}, {18, u"x"}, {0, u"a"}};
  const KeyboardEventTranslator translator(russianOverDvorak);
  EXPECT_EQ(translator.translate(1), HUDKey::letter('O'));
  EXPECT_EQ(translator.translate(0), HUDKey::letter('A'));
  // Digits keep their place; a key that types no letter there either keeps its US letter.
  EXPECT_EQ(translator.translate(18), HUDKey::number(1));
  EXPECT_EQ(translator.translate(12), HUDKey::letter('Q'));

  // A Latin current layout is never second-guessed.
  LayoutTable azerty;
  azerty.typed = {{12, u"a"}};
  azerty.asciiCapable = {{12, u"q"}};
  EXPECT_EQ(KeyboardEventTranslator(azerty).translate(12), HUDKey::letter('A'));
}

} // namespace
} // namespace quenby
