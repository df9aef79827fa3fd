#pragma once

#include "base/BasePlatform.hpp"
#include "shortcuts/ShortcutsPlatform.hpp"

namespace quenby {

/// The Dock's preferences through CoreFoundation, Launch Services, Spotlight and the workspace's
/// notifications; opening, hiding, the front and the running applications through the
/// workspace; icons drawn by AppKit, read with `base`'s file system and decoder. Call on the main
/// thread.
[[nodiscard]] ShortcutsPlatform makeLiveShortcutsPlatform(const BasePlatform& base);

} // namespace quenby
