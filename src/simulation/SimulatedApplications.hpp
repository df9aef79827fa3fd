#pragma once

#include "base/FileURL.hpp"
#include "base/PropertyListDecoding.hpp"
#include "simulation/SimulatedDistributedNotificationCenter.hpp"
#include "simulation/SimulatedLaunchServices.hpp"

#include <memory>
#include <optional>
#include <string>

namespace quenby {

/// Installs, removes, moves and rewrites real application bundles on the simulated disk and keeps
/// the application database in step, posting what Launch Services posts. Paths are real (host)
/// paths; failures throw std::runtime_error with a message for the script's author.
class SimulatedApplications {
public:
  SimulatedApplications(std::shared_ptr<const PropertyListDecoding> decoder,
                        SimulatedLaunchServices& launchServices,
                        SimulatedDistributedNotificationCenter& notifications);

  /// A bundle folder with a real Contents/Info.plist and Contents/Resources/.
  void install(const FileURL& bundle, const std::string& bundleIdentifier, const std::string& name);
  /// The same, with the bytes of a real property list as its Info.plist.
  void installWithPropertyList(const FileURL& bundle, const std::string& propertyListFile);
  void remove(const FileURL& bundle);
  void move(const FileURL& from, const FileURL& to);
  /// Rewrites the bundle's Info.plist in place (a new file, the same content).
  void touch(const FileURL& bundle);

  /// The identifier and name an installed bundle declares, if it can be read.
  [[nodiscard]] std::optional<std::string> bundleIdentifier(const FileURL& bundle) const;
  [[nodiscard]] std::optional<std::string> bundleName(const FileURL& bundle) const;

private:
  [[nodiscard]] std::optional<PropertyListValue> infoPropertyList(const FileURL& bundle) const;
  void registerBundle(const FileURL& bundle);

  std::shared_ptr<const PropertyListDecoding> decoder_;
  SimulatedLaunchServices& launchServices_;
  SimulatedDistributedNotificationCenter& notifications_;
};

} // namespace quenby
