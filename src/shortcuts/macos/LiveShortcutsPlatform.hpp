#pragma once

#include "shortcuts/ShortcutsPlatform.hpp"

namespace quenby {

/// The Dock's preferences through CoreFoundation, Launch Services, Spotlight and the workspace's
/// notifications; opening, hiding and the front application through the workspace. Call on the
/// main thread.
[[nodiscard]] ShortcutsPlatform makeLiveShortcutsPlatform();

} // namespace quenby
