#include "ui/animation/ShortcutAnimationLabel.hpp"

namespace quenby {

std::optional<std::string> shortcutAnimationLabel(const MappingSource& source,
                                                  ActivationModifierPreference modifier) {
  char key = '\0';
  switch (source.kind()) {
  case MappingSource::Kind::dock:
    if (source.position() < 1 || source.position() > 9) {
      return std::nullopt;
    }
    key = static_cast<char>('0' + source.position());
    break;
  case MappingSource::Kind::letter: {
    // Upper-cased by hand: the C locale functions would let a locale's idea of a letter in.
    const char letter = source.letter();
    if (letter >= 'a' && letter <= 'z') {
      key = static_cast<char>(letter - 'a' + 'A');
    } else if (letter >= 'A' && letter <= 'Z') {
      key = letter;
    } else {
      return std::nullopt;
    }
    break;
  }
  }
  std::string label = modifier == ActivationModifierPreference::control ? "⌃ " : "⌥ ";
  label += key;
  return label;
}

} // namespace quenby
