#pragma once

#include "hud/tap/EventTapPermissionKind.hpp"

#include <cstdint>

namespace quenby {

/// What choosing a menu item does.
struct MenuBarCommand {
  enum class Kind : std::uint8_t {
    openPermissionSettings,
    toggleHUD,
    retryHUD,
    retryOptionDigits,
    showSettings,
    quit
  };

  Kind kind = Kind::showSettings;
  /// Only for `openPermissionSettings`: whose privacy pane to open.
  EventTapPermissionKind permission = EventTapPermissionKind::accessibility;

  [[nodiscard]] static constexpr MenuBarCommand
  openPermissionSettings(EventTapPermissionKind permission) {
    return {Kind::openPermissionSettings, permission};
  }
  [[nodiscard]] static constexpr MenuBarCommand toggleHUD() { return {Kind::toggleHUD}; }
  [[nodiscard]] static constexpr MenuBarCommand retryHUD() { return {Kind::retryHUD}; }
  [[nodiscard]] static constexpr MenuBarCommand retryOptionDigits() {
    return {Kind::retryOptionDigits};
  }
  [[nodiscard]] static constexpr MenuBarCommand showSettings() { return {Kind::showSettings}; }
  [[nodiscard]] static constexpr MenuBarCommand quit() { return {Kind::quit}; }

  friend constexpr bool operator==(const MenuBarCommand& a, const MenuBarCommand& b) {
    return a.kind == b.kind &&
           (a.kind != Kind::openPermissionSettings || a.permission == b.permission);
  }
};

} // namespace quenby
