#pragma once

#include "app/PlatformServices.hpp"

namespace quenby {

/// The system adapters for the runtime graph, each subsystem's from its own macos/ folder. Call
/// on the main thread, once launching has finished.
[[nodiscard]] PlatformServices makeLivePlatformServices();

} // namespace quenby
