#pragma once

#include "hud/routing/KeyboardCharacterTranslating.hpp"
#include "simulation/SimulatedKeyboard.hpp"

namespace quenby {

/// What each key types under the simulated keyboard's current layout: US, French AZERTY (A and
/// Q, Z and W swapped, M beside L, the top row typing symbols) or Russian ЙЦУКЕН (a Cyrillic
/// letter on every letter key). Keys a layout leaves alone type as on the US layout. The Latin
/// layout selected last stands in where Latin letters are needed.
class SimulatedCharacterTranslator final : public KeyboardCharacterTranslating {
public:
  explicit SimulatedCharacterTranslator(const SimulatedKeyboard& keyboard) : keyboard_(keyboard) {}

  [[nodiscard]] TypedKeyText character(std::uint16_t keyCode) const override;
  [[nodiscard]] TypedKeyText asciiCapableCharacter(std::uint16_t keyCode) const override;

private:
  const SimulatedKeyboard& keyboard_;
};

} // namespace quenby
