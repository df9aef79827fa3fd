#pragma once

#include "hud/tap/SystemKeyboardEventTapDependencies.hpp"

namespace quenby {

/// The keyboard tap's operations over CoreGraphics event taps and the main run loop. Main thread
/// only; the value may be copied, and its copies share the bookkeeping of the taps they create.
[[nodiscard]] SystemKeyboardEventTapDependencies makeLiveKeyboardEventTapDependencies();

} // namespace quenby
