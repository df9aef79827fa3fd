#pragma once

#include "hud/tap/EventTapPermissionStatus.hpp"
#include "hud/tap/GlobalKeyboardEventTapFailure.hpp"

#include <cstdint>
#include <string_view>

namespace quenby {

/// Why the keyboard tap is off although the HUD is enabled: the system stopped it, or would not
/// create it. Latched until the user retries.
struct HUDTapFailure {
  enum class Kind : std::uint8_t { runtime, creationFailed };

  Kind kind = Kind::creationFailed;
  /// Only for `runtime`.
  GlobalKeyboardEventTapFailure runtimeFailure = GlobalKeyboardEventTapFailure::disabledByUserInput;

  [[nodiscard]] static HUDTapFailure runtime(GlobalKeyboardEventTapFailure failure) {
    return {Kind::runtime, failure};
  }
  [[nodiscard]] static HUDTapFailure creation() { return {}; }
  /// What the user reads about it.
  [[nodiscard]] const LocalizedText& description() const;

  friend bool operator==(const HUDTapFailure& a, const HUDTapFailure& b) {
    return a.kind == b.kind && (a.kind != Kind::runtime || a.runtimeFailure == b.runtimeFailure);
  }
};

/// The HUD feature as the menu shows it.
struct HUDHealth {
  enum class Kind : std::uint8_t { needsPermission, tapFailure, disabled, ready };

  Kind kind = Kind::disabled;
  /// Only for `needsPermission`: which permissions are missing.
  EventTapPermissionStatus permission;
  /// Only for `tapFailure`.
  HUDTapFailure failure;

  [[nodiscard]] static HUDHealth needsPermission(EventTapPermissionStatus status) {
    return {Kind::needsPermission, status, {}};
  }
  [[nodiscard]] static HUDHealth tapFailure(HUDTapFailure failure) {
    return {Kind::tapFailure, {}, failure};
  }
  [[nodiscard]] static HUDHealth disabled() { return {}; }
  [[nodiscard]] static HUDHealth ready() { return {Kind::ready, {}, {}}; }

  /// "needsPermission", "tapFailure", "disabled" or "ready".
  [[nodiscard]] std::string_view caseName() const;

  friend bool operator==(const HUDHealth& a, const HUDHealth& b) {
    return a.kind == b.kind && (a.kind != Kind::needsPermission || a.permission == b.permission) &&
           (a.kind != Kind::tapFailure || a.failure == b.failure);
  }
};

} // namespace quenby
