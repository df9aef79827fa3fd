#pragma once

#include "hud/HUDPlatform.hpp"

namespace quenby {

/// The session's keyboard tap through CoreGraphics, its permissions through Accessibility and
/// CoreGraphics, the modifier keys' hardware state, the current keyboard layout through the text
/// input sources, the non-activating AppKit panel with its mouse monitors, an alert explaining a
/// digit, and os_signpost. Call on the main thread.
[[nodiscard]] HUDPlatform makeLiveHUDPlatform();

} // namespace quenby
