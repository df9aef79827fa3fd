#pragma once

#include "hud/tap/EventTapPermissionStatus.hpp"

#include <functional>
#include <string>

namespace quenby {

/// Checks, asks for and shows in System Settings the permissions the keyboard tap needs. Main
/// thread only.
class SystemEventTapPermission {
public:
  /// The five system calls behind it.
  struct Operations {
    /// Neither check prompts the user.
    std::function<bool()> accessibilityTrusted;
    std::function<bool()> inputMonitoringGranted;
    /// Each may show the system's prompt, which appears later; the grant takes effect later still.
    std::function<void()> requestAccessibility;
    std::function<void()> requestInputMonitoring;
    /// Does nothing with a text that is not a URL.
    std::function<void(const std::string& url)> openSettingsURL;

    /// A system that grants nothing and shows nothing.
    [[nodiscard]] static Operations inert();
  };

  explicit SystemEventTapPermission(Operations operations) : operations_(std::move(operations)) {}

  [[nodiscard]] EventTapPermissionStatus status() const;
  void request(EventTapPermissionKind kind);
  /// Opens the permission's privacy pane, only while the permission is missing.
  void openSettings(EventTapPermissionKind kind);

  /// The address of the permission's privacy pane in System Settings.
  [[nodiscard]] static std::string settingsURL(EventTapPermissionKind kind);

private:
  Operations operations_;
};

} // namespace quenby
