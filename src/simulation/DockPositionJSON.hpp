#pragma once

#include "base/FileURL.hpp"
#include "shortcuts/mapping/NumberMappingEntries.hpp"

#include <functional>
#include <nlohmann/json.hpp>
#include <string>

namespace quenby {

/// How a path is printed: the simulation and the command line show paths without the directory
/// that stands for the disk.
using DisplayPath = std::function<std::string(const FileURL&)>;

/// One Dock position as `quenbyctl dock --json` and the simulation's `state` event print it:
/// {"position", "state": "mapped", "name", "bundle", "path", "resolution", "resolvedPath" or
/// "candidates"} or {"position", "state": "unavailable", "problem", "message"}.
[[nodiscard]] nlohmann::ordered_json dockPositionJSON(int position, const NumberMappingEntry& entry,
                                                      const DisplayPath& displayPath);

/// The nine positions in order, each as `dockPositionJSON`.
[[nodiscard]] nlohmann::ordered_json dockPositionsJSON(const NumberMappingEntries& entries,
                                                       const DisplayPath& displayPath);

} // namespace quenby
