#pragma once

#include "base/PropertyListValue.hpp"

#include <optional>

namespace quenby {

/// The system's own keyboard shortcuts (Keyboard Shortcuts in System Settings), which win over any
/// hot key we register without the registration failing. Main thread only.
class SystemSymbolicHotKeyReading {
public:
  static constexpr const char* kDomain = "com.apple.symbolichotkeys";
  static constexpr const char* kKey = "AppleSymbolicHotKeys";

  virtual ~SystemSymbolicHotKeyReading() = default;
  /// The stored table as it is, or none when there is none or it cannot be read.
  [[nodiscard]] virtual std::optional<PropertyListValue> copySymbolicHotKeys() = 0;
};

/// The system has no shortcut of its own.
class InertSystemSymbolicHotKeyReader final : public SystemSymbolicHotKeyReading {
public:
  [[nodiscard]] std::optional<PropertyListValue> copySymbolicHotKeys() override {
    return std::nullopt;
  }
};

} // namespace quenby
