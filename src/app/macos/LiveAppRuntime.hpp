#pragma once

#include "app/PlatformServices.hpp"

namespace quenby {

/// The system adapters for the runtime graph: standard user defaults, the main run loop, the
/// steady clock, the main bundle's strings, the unified log, the POSIX file system,
/// CoreFoundation's property-list decoder, AppKit's activation policy and screens. Call on the
/// main thread, once launching has finished.
[[nodiscard]] PlatformServices makeLivePlatformServices();

} // namespace quenby
