#include "simulation/DockPositionJSON.hpp"

namespace quenby {

nlohmann::ordered_json dockPositionJSON(int position, const NumberMappingEntry& entry,
                                        const DisplayPath& displayPath) {
  nlohmann::ordered_json json{{"position", position}};
  if (const AppMapping* mapping = entry.mapping()) {
    json["state"] = "mapped";
    json["name"] = mapping->displayName;
    json["bundle"] = mapping->bundleIdentifier;
    json["path"] = displayPath(mapping->lastKnownURL);
    json["resolution"] = mapping->resolution.name();
    if (const auto resolved = mapping->resolution.resolvedURL()) {
      json["resolvedPath"] = displayPath(*resolved);
    } else if (mapping->resolution.kind() == ApplicationResolution::Kind::ambiguous) {
      auto candidates = nlohmann::ordered_json::array();
      for (const auto& candidate : mapping->resolution.candidatePaths()) {
        candidates.push_back(displayPath(candidate));
      }
      json["candidates"] = std::move(candidates);
    }
    return json;
  }
  const NumberMappingProblem& problem = *entry.problem();
  json["state"] = "unavailable";
  json["problem"] = problem.name();
  if (problem.kind() != NumberMappingProblem::Kind::emptyDockPosition) {
    json["message"] = problem.message();
  }
  return json;
}

nlohmann::ordered_json dockPositionsJSON(const NumberMappingEntries& entries,
                                         const DisplayPath& displayPath) {
  auto positions = nlohmann::ordered_json::array();
  for (int position = NumberMappingEntries::kFirstPosition;
       position <= NumberMappingEntries::kLastPosition; ++position) {
    positions.push_back(dockPositionJSON(position, entries.at(position), displayPath));
  }
  return positions;
}

} // namespace quenby
