#pragma once

#include <optional>
#include <string>

namespace quenby {

/// One running process as the workspace lists it, taken at one instant.
struct RunningApplicationProcessSnapshot {
  /// Absent for a process whose bundle declares no identifier.
  std::optional<std::string> bundleIdentifier;
  /// The workspace may still list a process that has just quit.
  bool isTerminated = false;

  friend bool operator==(const RunningApplicationProcessSnapshot&,
                         const RunningApplicationProcessSnapshot&) = default;
};

} // namespace quenby
