#pragma once

#include "base/BasePlatform.hpp"

namespace quenby {

/// Standard user defaults, the main run loop, the steady clock, the main bundle's strings, the
/// unified log, the POSIX file system, CoreFoundation's property-list decoder and the
/// distributed notification centre. Call on the main thread.
[[nodiscard]] BasePlatform makeLiveBasePlatform();

} // namespace quenby
