#include "simulation/ScenarioLineRegistry.hpp"

#include <cassert>

namespace quenby {

void ScenarioLineRegistry::addLine(std::string command, Line line) {
  [[maybe_unused]] const bool added = lines_.emplace(std::move(command), std::move(line)).second;
  assert(added && "two subsystems claim the same scenario line");
}

const ScenarioLineRegistry::Line* ScenarioLineRegistry::line(std::string_view command) const {
  const auto found = lines_.find(command);
  return found == lines_.end() ? nullptr : &found->second;
}

} // namespace quenby
