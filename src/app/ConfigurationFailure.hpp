#pragma once

#include <string>

namespace quenby {

/// A failure that only the user can fix, shown to them once per `id`.
struct ConfigurationFailure {
  /// A stable dotted key naming the cause ("switch.configuration.dock.4.empty-position"); the
  /// "already reported" marker in the user defaults is derived from it, so it must not change
  /// between releases.
  std::string id;
  /// Already localised.
  std::string title;
  /// Already localised.
  std::string message;

  friend bool operator==(const ConfigurationFailure&, const ConfigurationFailure&) = default;
};

} // namespace quenby
