#include "hud/tap/SystemEventTapPermission.hpp"

namespace quenby {

SystemEventTapPermission::Operations SystemEventTapPermission::Operations::inert() {
  return {.accessibilityTrusted = [] { return false; },
          .inputMonitoringGranted = [] { return false; },
          .requestAccessibility = [] {},
          .requestInputMonitoring = [] {},
          .openSettingsURL = [](const std::string&) {}};
}

EventTapPermissionStatus SystemEventTapPermission::status() const {
  return {.accessibilityTrusted = operations_.accessibilityTrusted(),
          .inputMonitoringGranted = operations_.inputMonitoringGranted()};
}

void SystemEventTapPermission::request(EventTapPermissionKind kind) {
  if (kind == EventTapPermissionKind::accessibility) {
    operations_.requestAccessibility();
  } else {
    operations_.requestInputMonitoring();
  }
}

void SystemEventTapPermission::openSettings(EventTapPermissionKind kind) {
  if (status().isMissing(kind)) {
    operations_.openSettingsURL(settingsURL(kind));
  }
}

std::string SystemEventTapPermission::settingsURL(EventTapPermissionKind kind) {
  std::string url = "x-apple.systempreferences:com.apple.preference.security?";
  url += kind == EventTapPermissionKind::accessibility ? "Privacy_Accessibility"
                                                       : "Privacy_ListenEvent";
  return url;
}

} // namespace quenby
