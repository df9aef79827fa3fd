#pragma once

#include "base/PropertyListValue.hpp"

#include <functional>
#include <optional>

namespace quenby {

/// The Dock's preference domain for the current user on any host, as the two closures that a
/// `SystemDockPreferenceReader` reads through. The closures hold no state of their own and run
/// on the main thread.
struct SystemDockPreferences {
  std::function<bool()> synchronize;
  /// A value that is present but cannot be converted comes back as an empty dictionary, so the
  /// reader reports it as malformed rather than missing.
  std::function<std::optional<PropertyListValue>()> copyPersistentApps;
};

[[nodiscard]] SystemDockPreferences makeSystemDockPreferences();

} // namespace quenby
