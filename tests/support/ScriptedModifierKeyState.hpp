#pragma once

#include "hud/gestures/SystemModifierKeyStateReader.hpp"

#include <bitset>

namespace quenby {

/// A keyboard whose held keys the test sets; answers only for the hardware state, as the
/// recogniser must always ask for it.
class ScriptedModifierKeyState final : public SystemModifierKeyStateReader {
public:
  [[nodiscard]] bool readKeyState(std::int32_t stateID, std::uint16_t keyCode) const override {
    return stateID == kHIDSystemState && keyCode < held.size() && held.test(keyCode);
  }

  std::bitset<128> held;
};

} // namespace quenby
