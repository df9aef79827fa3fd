#pragma once

#include "hud/panel/HUDOutsideClickMonitorDependencies.hpp"

namespace quenby {

/// The system's mouse-event monitors (local and global) and the events' screen locations.
[[nodiscard]] HUDOutsideClickMonitorDependencies makeLiveHUDOutsideClickMonitorDependencies();

} // namespace quenby
