#pragma once

#include "hud/tap/EventTapPermissionKind.hpp"

#include <vector>

namespace quenby {

/// Which of the tap's permissions the system grants right now.
struct EventTapPermissionStatus {
  bool accessibilityTrusted = false;
  bool inputMonitoringGranted = false;

  [[nodiscard]] bool isMissing(EventTapPermissionKind kind) const {
    return kind == EventTapPermissionKind::accessibility ? !accessibilityTrusted
                                                         : !inputMonitoringGranted;
  }
  /// Accessibility first.
  [[nodiscard]] std::vector<EventTapPermissionKind> missingKinds() const {
    std::vector<EventTapPermissionKind> missing;
    for (const auto kind :
         {EventTapPermissionKind::accessibility, EventTapPermissionKind::inputMonitoring}) {
      if (isMissing(kind)) {
        missing.push_back(kind);
      }
    }
    return missing;
  }

  friend bool operator==(const EventTapPermissionStatus&,
                         const EventTapPermissionStatus&) = default;
};

} // namespace quenby
