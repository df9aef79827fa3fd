#pragma once

#include "shortcuts/hotkeys/OptionDigitHotKeyError.hpp"

#include <optional>

namespace quenby {

/// The state of the digit shortcuts as the menu shows it. While registration has failed, no
/// digit shortcut is live.
class OptionDigitHotKeyHealth {
public:
  enum class Kind { notStarted, ready, registrationFailed };

  [[nodiscard]] static OptionDigitHotKeyHealth notStarted() { return {Kind::notStarted, {}}; }
  [[nodiscard]] static OptionDigitHotKeyHealth ready() { return {Kind::ready, {}}; }
  [[nodiscard]] static OptionDigitHotKeyHealth registrationFailed(OptionDigitHotKeyError error) {
    return {Kind::registrationFailed, std::move(error)};
  }

  [[nodiscard]] Kind kind() const { return kind_; }
  /// The case as the simulation and logs name it: "notStarted", "ready", "registrationFailed".
  [[nodiscard]] static constexpr const char* kindName(Kind kind) {
    switch (kind) {
    case Kind::notStarted:
      return "notStarted";
    case Kind::ready:
      return "ready";
    case Kind::registrationFailed:
      break;
    }
    return "registrationFailed";
  }
  /// The failure; null unless registration failed.
  [[nodiscard]] const OptionDigitHotKeyError* error() const { return error_ ? &*error_ : nullptr; }

  friend bool operator==(const OptionDigitHotKeyHealth&, const OptionDigitHotKeyHealth&) = default;

private:
  OptionDigitHotKeyHealth(Kind kind, std::optional<OptionDigitHotKeyError> error)
      : kind_(kind), error_(std::move(error)) {}

  Kind kind_;
  std::optional<OptionDigitHotKeyError> error_;
};

} // namespace quenby
