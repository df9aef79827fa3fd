#pragma once

#include "hud/access/KeyboardAccessProbing.hpp"
#include "simulation/SimulatedKeyboard.hpp"

namespace quenby {

/// Secure keyboard entry and the system's key-down count as the script sets them. The holder
/// gets one fixed process id; an empty name stands for a holder the system does not name.
class SimulatedKeyboardAccessProbe final : public KeyboardAccessProbing {
public:
  static constexpr std::int32_t kHolderProcess = 4242;

  explicit SimulatedKeyboardAccessProbe(const SimulatedKeyboard& keyboard) : keyboard_(keyboard) {}

  [[nodiscard]] std::int32_t secureInputProcess() const override {
    if (!keyboard_.secureInputHolder) {
      return kNoSecureInput;
    }
    return keyboard_.secureInputHolder->empty() ? kUnknownHolder : kHolderProcess;
  }
  [[nodiscard]] std::optional<std::string> applicationName(std::int32_t process) const override {
    if (process != kHolderProcess || !keyboard_.secureInputHolder) {
      return std::nullopt;
    }
    return keyboard_.secureInputHolder;
  }
  [[nodiscard]] std::uint64_t systemKeyDownCount() const override {
    return keyboard_.systemKeyDownCount;
  }

private:
  const SimulatedKeyboard& keyboard_;
};

} // namespace quenby
