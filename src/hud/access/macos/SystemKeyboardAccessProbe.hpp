#pragma once

#include "hud/access/KeyboardAccessProbing.hpp"

namespace quenby {

/// Secure keyboard entry and the key-down counter as the system reports them. No state of its
/// own.
class SystemKeyboardAccessProbe final : public KeyboardAccessProbing {
public:
  [[nodiscard]] std::int32_t secureInputProcess() const override;
  [[nodiscard]] std::optional<std::string> applicationName(std::int32_t process) const override;
  [[nodiscard]] std::uint64_t systemKeyDownCount() const override;
};

} // namespace quenby
