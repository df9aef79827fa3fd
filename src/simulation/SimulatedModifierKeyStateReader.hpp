#pragma once

#include "hud/gestures/SystemModifierKeyStateReader.hpp"
#include "simulation/SimulatedKeyboard.hpp"

namespace quenby {

/// The simulated keyboard's physical keys; `keyboard` must outlive the reader.
class SimulatedModifierKeyStateReader final : public SystemModifierKeyStateReader {
public:
  explicit SimulatedModifierKeyStateReader(const SimulatedKeyboard& keyboard)
      : keyboard_(keyboard) {}
  [[nodiscard]] bool readKeyState(std::int32_t, std::uint16_t keyCode) const override {
    return keyboard_.isDown(keyCode);
  }

private:
  const SimulatedKeyboard& keyboard_;
};

} // namespace quenby
