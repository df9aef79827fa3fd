#pragma once

#include "shortcuts/catalog/InstalledApplicationLocating.hpp"

#include <map>
#include <string>
#include <vector>

namespace quenby {

/// What the simulated Mac's application database knows: the bundles that `app` lines installed,
/// by identifier, at their real paths on the simulated disk.
class SimulatedLaunchServices final : public InstalledApplicationLocating {
public:
  [[nodiscard]] std::vector<FileURL>
  applicationURLs(const std::string& bundleIdentifier) const override;

  void registerApplication(const std::string& bundleIdentifier, const FileURL& url);
  /// Forgets every registration at `url` or inside it.
  void unregisterApplications(const FileURL& url);
  /// Moves every registration at `from` or inside it to the same place under `to`.
  void moveApplications(const FileURL& from, const FileURL& to);

private:
  std::map<std::string, std::vector<FileURL>, std::less<>> urlsByIdentifier_;
};

} // namespace quenby
