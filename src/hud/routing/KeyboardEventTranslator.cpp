#include "hud/routing/KeyboardEventTranslator.hpp"

#include <array>
#include <utility>

namespace quenby {
namespace {

constexpr std::size_t kTableSize = 128;

constexpr std::array<std::pair<std::uint16_t, char>, 26> kUSANSILetters{{
    {0, 'A'},  {11, 'B'}, {8, 'C'},  {2, 'D'},  {14, 'E'}, {3, 'F'},  {5, 'G'},
    {4, 'H'},  {34, 'I'}, {38, 'J'}, {40, 'K'}, {37, 'L'}, {46, 'M'}, {45, 'N'},
    {31, 'O'}, {35, 'P'}, {12, 'Q'}, {15, 'R'}, {1, 'S'},  {17, 'T'}, {32, 'U'},
    {9, 'V'},  {13, 'W'}, {7, 'X'},  {16, 'Y'}, {6, 'Z'},
}};

// By place, not by label: the keys are not in numeric order on the row.
constexpr std::array<std::pair<std::uint16_t, int>, 9> kTopRowDigits{{
    {18, 1},
    {19, 2},
    {20, 3},
    {21, 4},
    {23, 5},
    {22, 6},
    {26, 7},
    {28, 8},
    {25, 9},
}};

template <typename Value, std::size_t N>
constexpr std::array<Value, kTableSize>
tableOf(const std::array<std::pair<std::uint16_t, Value>, N>& pairs) {
  std::array<Value, kTableSize> table{};
  for (const auto& [keyCode, value] : pairs) {
    table[keyCode] = value;
  }
  return table;
}

constexpr auto kLetterTable = tableOf(kUSANSILetters);
constexpr auto kDigitTable = tableOf(kTopRowDigits);

} // namespace

char KeyboardEventTranslator::usANSILetter(std::uint16_t keyCode) {
  return keyCode < kTableSize ? kLetterTable[keyCode] : '\0';
}

int KeyboardEventTranslator::topRowDigit(std::uint16_t keyCode) {
  return keyCode < kTableSize ? kDigitTable[keyCode] : 0;
}

char KeyboardEventTranslator::letterOf(const TypedKeyText& text) {
  // Anything longer than one unit is a supplementary-plane character or several characters:
  // neither upper-cases to a single Latin letter.
  if (text.length != 1) {
    return '\0';
  }
  const char16_t unit = text.units[0];
  if (unit >= u'A' && unit <= u'Z') {
    return static_cast<char>(unit);
  }
  if (unit >= u'a' && unit <= u'z') {
    return static_cast<char>(unit - u'a' + u'A');
  }
  // The only other characters whose upper case is a plain Latin letter: the dotless i of the
  // Turkish layouts and the long s.
  if (unit == u'\u0131') {
    return 'I';
  }
  if (unit == u'\u017F') {
    return 'S';
  }
  return '\0';
}

HUDKey KeyboardEventTranslator::translate(std::uint16_t keyCode) const {
  if (keyCode == kEscapeKeyCode) {
    return HUDKey::escape();
  }
  if (const char letter = letterOf(characterTranslator_.character(keyCode)); letter != '\0') {
    return HUDKey::letter(letter);
  }
  if (const int digit = topRowDigit(keyCode); digit != 0) {
    return HUDKey::number(digit);
  }
  // A layout without Latin letters: the letter the user types there when Latin is needed, and
  // the US position when even that layout says nothing.
  if (const char letter = letterOf(characterTranslator_.asciiCapableCharacter(keyCode));
      letter != '\0') {
    return HUDKey::letter(letter);
  }
  if (const char letter = usANSILetter(keyCode); letter != '\0') {
    return HUDKey::letter(letter);
  }
  return HUDKey::other();
}

} // namespace quenby
