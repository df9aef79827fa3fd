#pragma once

#include "hud/routing/KeyboardCharacterTranslating.hpp"
#include "hud/view/HUDKey.hpp"

#include <cstdint>

namespace quenby {

/// Reads a virtual key code as the HUD means it. Letters follow the active layout (on a French
/// layout the key that types "a" is A), digits follow the key's place on the top row whatever it
/// types, and a layout without Latin letters falls back to the US letter positions. Allocates
/// nothing. `characterTranslator` must outlive it.
class KeyboardEventTranslator {
public:
  static constexpr std::uint16_t kEscapeKeyCode = 53;

  explicit KeyboardEventTranslator(const KeyboardCharacterTranslating& characterTranslator)
      : characterTranslator_(characterTranslator) {}

  [[nodiscard]] HUDKey translate(std::uint16_t keyCode) const;

  /// The letter a US-ANSI keyboard prints on the key, or '\0'.
  [[nodiscard]] static char usANSILetter(std::uint16_t keyCode);
  /// The top-row digit 1–9 at the key's place, or 0.
  [[nodiscard]] static int topRowDigit(std::uint16_t keyCode);
  /// The upper-case letter 'A'–'Z' that `text` is, exactly one character once upper-cased, or
  /// '\0'.
  [[nodiscard]] static char letterOf(const TypedKeyText& text);

private:
  const KeyboardCharacterTranslating& characterTranslator_;
};

} // namespace quenby
