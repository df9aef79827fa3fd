#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace quenby {

/// The system's view of the keyboard, read once per check. Main thread only.
class KeyboardAccessProbing {
public:
  /// No process holds secure keyboard entry.
  static constexpr std::int32_t kNoSecureInput = -1;
  /// Secure keyboard entry is on but the system does not say who holds it.
  static constexpr std::int32_t kUnknownHolder = 0;

  virtual ~KeyboardAccessProbing() = default;
  /// The process id holding secure keyboard entry, or one of the two constants above.
  [[nodiscard]] virtual std::int32_t secureInputProcess() const = 0;
  /// The display name of a running process, when the system knows one.
  [[nodiscard]] virtual std::optional<std::string> applicationName(std::int32_t process) const = 0;
  /// Key-downs the system has counted since it started, whoever received them.
  [[nodiscard]] virtual std::uint64_t systemKeyDownCount() const = 0;
};

/// Sees no secure entry and counts no keys, so nothing ever looks wrong.
class InertKeyboardAccessProbe final : public KeyboardAccessProbing {
public:
  [[nodiscard]] std::int32_t secureInputProcess() const override { return kNoSecureInput; }
  [[nodiscard]] std::optional<std::string> applicationName(std::int32_t) const override {
    return std::nullopt;
  }
  [[nodiscard]] std::uint64_t systemKeyDownCount() const override { return 0; }
};

} // namespace quenby
