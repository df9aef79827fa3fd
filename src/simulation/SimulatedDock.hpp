#pragma once

#include "base/FileSystem.hpp"
#include "base/FileURL.hpp"
#include "base/PropertyListDecoding.hpp"
#include "base/PropertyListValue.hpp"
#include "shortcuts/dock/PropertyListFileDockPreferences.hpp"

#include <memory>
#include <optional>
#include <string>

namespace quenby {

/// The simulated Mac's Dock preferences: a scripted "persistent-apps" list built tile by tile
/// the way the Dock writes it, or a real property-list file standing for the whole domain. The
/// program sees changes only when it reads again (poll or notification), as on a Mac.
class SimulatedDock {
public:
  SimulatedDock(std::shared_ptr<const FileSystem> fileSystem,
                std::shared_ptr<const PropertyListDecoding> decoder);

  /// A pinned application at `url`; no "bundle-identifier" when `bundleIdentifier` is absent.
  void appendApplication(const FileURL& url, const std::optional<std::string>& bundleIdentifier,
                         const std::string& label, bool runningOnly);
  void appendSpacer();
  void appendFolder(const FileURL& url);
  void appendWebLink(const std::string& url);
  void appendDocument(const FileURL& url);
  /// "persistent-apps" becomes empty, goes missing, or holds something that is not an array.
  void clear();
  void removePersistentApps();
  void makePersistentAppsInvalid();
  /// The domain becomes a real property-list file, read anew at every synchronisation. Its
  /// absolute paths are taken below `diskRoot`, like every path of the simulated Mac.
  void useFile(const std::string& hostPath, const std::string& diskRoot);
  void setSynchronizationFails(bool fails) { synchronizationFails_ = fails; }

  /// What the program's preference reader sees.
  [[nodiscard]] bool synchronize();
  [[nodiscard]] std::optional<PropertyListValue> copyPersistentApps() const;

private:
  void append(PropertyListValue::Dictionary tile);

  std::shared_ptr<const FileSystem> fileSystem_;
  std::shared_ptr<const PropertyListDecoding> decoder_;
  std::optional<PropertyListValue::Array> tiles_ = PropertyListValue::Array{};
  std::optional<PropertyListValue> invalidValue_;
  std::unique_ptr<PropertyListFileDockPreferences> file_;
  std::int64_t nextGUID_ = 3'100'000'001;
  bool synchronizationFails_ = false;
};

} // namespace quenby
