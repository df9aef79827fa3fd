#pragma once

#include "base/PropertyListValue.hpp"

#include <functional>
#include <optional>

namespace quenby {

/// The Dock's preference domain as the Dock reads it (its application search list, forced
/// values included), as the two closures that a `SystemDockPreferenceReader` reads through. They
/// run on the main thread.
struct SystemDockPreferences {
  std::function<bool()> synchronize;
  /// A value that is present but cannot be converted comes back as an empty dictionary, so the
  /// reader reports it as malformed rather than missing. Remembers the last value: an unchanged
  /// one is not converted again, and comes back sharing the last conversion's items.
  std::function<std::optional<PropertyListValue>()> copyPersistentApps;
};

[[nodiscard]] SystemDockPreferences makeSystemDockPreferences();

} // namespace quenby
