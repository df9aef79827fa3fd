#include "simulation/SimulatedWorld.hpp"

#include "base/FileURL.hpp"

namespace quenby {

SimulatedWorld::SimulatedWorld()
    : disk_("quenby-sim-"), screens_{SimulatedScreen{{0, 0, 1440, 900}, {0, 0, 1440, 875}, true}} {}

std::string SimulatedWorld::hostPath(std::string_view scriptPath) const {
  const std::string standardized = FileURL::fromPath(scriptPath).path();
  return standardized == "/" ? disk_.path() : disk_.path() + standardized;
}

std::string SimulatedWorld::scriptPath(std::string_view hostPath) const {
  const std::string& root = disk_.path();
  if (hostPath.size() >= root.size() && hostPath.substr(0, root.size()) == root &&
      (hostPath.size() == root.size() || hostPath[root.size()] == '/')) {
    const std::string_view rest = hostPath.substr(root.size());
    return rest.empty() ? "/" : std::string(rest);
  }
  return std::string(hostPath);
}

std::string SimulatedWorld::withoutDiskPrefix(std::string text) const {
  const std::string& root = disk_.path();
  for (std::size_t at = text.find(root); at != std::string::npos; at = text.find(root, at)) {
    text.erase(at, root.size());
  }
  return text;
}

} // namespace quenby
