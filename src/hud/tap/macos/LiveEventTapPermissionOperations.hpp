#pragma once

#include "hud/tap/SystemEventTapPermission.hpp"

namespace quenby {

/// The tap's permission checks and requests over the Accessibility trust and listen-event access
/// calls, and System Settings opened through the shared workspace. Main thread only.
[[nodiscard]] SystemEventTapPermission::Operations makeLiveEventTapPermissionOperations();

} // namespace quenby
