#pragma once

#include "hud/gestures/SystemModifierKeyStateReader.hpp"

namespace quenby {

/// The physical key state as the system's event sources report it. No state of its own.
class EventSourceModifierKeyStateReader final : public SystemModifierKeyStateReader {
public:
  [[nodiscard]] bool readKeyState(std::int32_t stateID, std::uint16_t keyCode) const override;
};

} // namespace quenby
