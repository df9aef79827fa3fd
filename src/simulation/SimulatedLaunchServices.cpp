#include "simulation/SimulatedLaunchServices.hpp"

#include <algorithm>

namespace quenby {

std::vector<FileURL>
SimulatedLaunchServices::applicationURLs(const std::string& bundleIdentifier) const {
  const auto found = urlsByIdentifier_.find(bundleIdentifier);
  return found == urlsByIdentifier_.end() ? std::vector<FileURL>{} : found->second;
}

void SimulatedLaunchServices::registerApplication(const std::string& bundleIdentifier,
                                                  const FileURL& url) {
  unregisterApplications(url);
  urlsByIdentifier_[bundleIdentifier].push_back(url);
}

void SimulatedLaunchServices::unregisterApplications(const FileURL& url) {
  for (auto it = urlsByIdentifier_.begin(); it != urlsByIdentifier_.end();) {
    std::erase_if(it->second,
                  [&url](const FileURL& known) { return known == url || known.isInside(url); });
    it = it->second.empty() ? urlsByIdentifier_.erase(it) : std::next(it);
  }
}

void SimulatedLaunchServices::moveApplications(const FileURL& from, const FileURL& to) {
  for (auto& [identifier, urls] : urlsByIdentifier_) {
    for (auto& known : urls) {
      if (known == from) {
        known = to;
      } else if (known.isInside(from)) {
        known = to.appending(known.path().substr(from.path().size() + 1));
      }
    }
  }
}

} // namespace quenby
