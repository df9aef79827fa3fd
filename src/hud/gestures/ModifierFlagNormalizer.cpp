#include "hud/gestures/ModifierFlagNormalizer.hpp"

namespace quenby {

std::optional<ModifierInput> ModifierFlagNormalizer::normalize(std::uint16_t keyCode, bool isDown,
                                                               Duration at) {
  ModifierSide side{};
  if (keyCode == keyCodes.left) {
    side = ModifierSide::left;
  } else if (keyCode == keyCodes.right) {
    side = ModifierSide::right;
  } else {
    return std::nullopt;
  }
  if (suppressedUntilRelease.contains(side)) {
    if (isDown) {
      pressed.insert(side);
    } else {
      pressed.erase(side);
      suppressedUntilRelease.erase(side);
    }
    return std::nullopt;
  }
  if (isDown == pressed.contains(side)) {
    return std::nullopt;
  }
  if (isDown) {
    pressed.insert(side);
    return ModifierInput::down(side, at);
  }
  pressed.erase(side);
  return ModifierInput::up(side, at);
}

} // namespace quenby
