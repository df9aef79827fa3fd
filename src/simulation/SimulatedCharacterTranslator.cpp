#include "simulation/SimulatedCharacterTranslator.hpp"

#include "hud/routing/KeyboardEventTranslator.hpp"

#include <array>
#include <utility>

namespace quenby {
namespace {

using KeyText = std::pair<std::uint16_t, char16_t>;

constexpr std::array<KeyText, 10> kUSTopRow{{
    {18, u'1'},
    {19, u'2'},
    {20, u'3'},
    {21, u'4'},
    {23, u'5'},
    {22, u'6'},
    {26, u'7'},
    {28, u'8'},
    {25, u'9'},
    {29, u'0'},
}};

constexpr std::array<KeyText, 16> kAZERTY{{
    {12, u'a'},
    {0, u'q'},
    {13, u'z'},
    {6, u'w'},
    {41, u'm'},
    {46, u','},
    {18, u'&'},
    {19, u'é'},
    {20, u'"'},
    {21, u'\''},
    {23, u'('},
    {22, u'§'},
    {26, u'è'},
    {28, u'!'},
    {25, u'ç'},
    {29, u'à'},
}};

constexpr std::array<KeyText, 26> kRussian{{
    {12, u'й'}, {13, u'ц'}, {14, u'у'}, {15, u'к'}, {17, u'е'}, {16, u'н'}, {32, u'г'},
    {34, u'ш'}, {31, u'щ'}, {35, u'з'}, {0, u'ф'},  {1, u'ы'},  {2, u'в'},  {3, u'а'},
    {5, u'п'},  {4, u'р'},  {38, u'о'}, {40, u'л'}, {37, u'д'}, {6, u'я'},  {7, u'ч'},
    {8, u'с'},  {9, u'м'},  {11, u'и'}, {45, u'т'}, {46, u'ь'},
}};

template <std::size_t N> char16_t find(const std::array<KeyText, N>& table, std::uint16_t keyCode) {
  for (const auto& [code, text] : table) {
    if (code == keyCode) {
      return text;
    }
  }
  return u'\0';
}

char16_t usCharacter(std::uint16_t keyCode) {
  if (const char letter = KeyboardEventTranslator::usANSILetter(keyCode); letter != '\0') {
    return static_cast<char16_t>(letter - 'A' + 'a');
  }
  return find(kUSTopRow, keyCode);
}

char16_t layoutCharacter(SimulatedKeyboard::Layout layout, std::uint16_t keyCode) {
  switch (layout) {
  case SimulatedKeyboard::Layout::azerty:
    if (const char16_t text = find(kAZERTY, keyCode)) {
      return text;
    }
    break;
  case SimulatedKeyboard::Layout::cyrillic:
    if (const char16_t text = find(kRussian, keyCode)) {
      return text;
    }
    break;
  case SimulatedKeyboard::Layout::us:
    break;
  }
  return usCharacter(keyCode);
}

TypedKeyText typedText(SimulatedKeyboard::Layout layout, std::uint16_t keyCode) {
  TypedKeyText text;
  if (const char16_t typed = layoutCharacter(layout, keyCode)) {
    text.units[0] = typed;
    text.length = 1;
  }
  return text;
}

} // namespace

TypedKeyText SimulatedCharacterTranslator::character(std::uint16_t keyCode) const {
  return typedText(keyboard_.layout, keyCode);
}

TypedKeyText SimulatedCharacterTranslator::asciiCapableCharacter(std::uint16_t keyCode) const {
  return typedText(keyboard_.asciiCapableLayout, keyCode);
}

} // namespace quenby
