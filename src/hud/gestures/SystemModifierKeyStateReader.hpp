#pragma once

#include <cstdint>

namespace quenby {

/// Whether a key is physically down right now, as the system's event source state reports it.
/// Main thread only.
class SystemModifierKeyStateReader {
public:
  /// The state of the hardware itself rather than of any one application's event stream.
  static constexpr std::int32_t kHIDSystemState = 1;

  virtual ~SystemModifierKeyStateReader() = default;
  [[nodiscard]] virtual bool readKeyState(std::int32_t stateID, std::uint16_t keyCode) const = 0;
};

/// A keyboard on which nothing is ever held.
class InertModifierKeyStateReader final : public SystemModifierKeyStateReader {
public:
  [[nodiscard]] bool readKeyState(std::int32_t, std::uint16_t) const override { return false; }
};

} // namespace quenby
