#pragma once

#include "shortcuts/hotkeys/SystemSymbolicHotKeyReading.hpp"

namespace quenby {

/// Reads the system's keyboard shortcut table from its preference domain. Main thread only.
class SystemSymbolicHotKeyReader final : public SystemSymbolicHotKeyReading {
public:
  [[nodiscard]] std::optional<PropertyListValue> copySymbolicHotKeys() override;
};

} // namespace quenby
