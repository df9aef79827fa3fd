#pragma once

#include "app/PlatformServices.hpp"

namespace quenby {

/// The system adapters for the runtime graph: standard user defaults, the main run loop, the
/// steady clock, the main bundle's strings, the unified log, the POSIX file system,
/// CoreFoundation's property-list decoder and preferences (the Dock), AppKit's activation policy,
/// screens, workspace and failure panels, Launch Services, Spotlight and the distributed
/// notification centre. Call on the main thread, once launching has finished.
[[nodiscard]] PlatformServices makeLivePlatformServices();

} // namespace quenby
