#pragma once

#include "hud/gestures/ModifierHardwareKeyCodes.hpp"
#include "hud/gestures/ModifierInput.hpp"

#include <optional>

namespace quenby {

/// Turns flags-changed events into presses and releases of one side of the activation modifier,
/// dropping the events that change nothing for that side. A side in `suppressedUntilRelease` is
/// tracked but yields nothing until it has been released once.
struct ModifierFlagNormalizer {
  ModifierHardwareKeyCodes keyCodes;
  ModifierSideSet pressed;
  ModifierSideSet suppressedUntilRelease;

  /// `isDown` is the key's physical state, read for `keyCode` itself.
  [[nodiscard]] std::optional<ModifierInput> normalize(std::uint16_t keyCode, bool isDown,
                                                       Duration at);
};

} // namespace quenby
