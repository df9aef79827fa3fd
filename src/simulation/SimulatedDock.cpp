#include "simulation/SimulatedDock.hpp"

#include <utility>

namespace quenby {
namespace {

// The Dock's own constants for a file URL string and for an application file.
constexpr std::int64_t kURLStringTypeFileURL = 15;
constexpr std::int64_t kFileTypeApplication = 41;

PropertyListValue fileData(const std::string& urlString) {
  return PropertyListValue::Dictionary{{"_CFURLString", urlString},
                                       {"_CFURLStringType", kURLStringTypeFileURL}};
}

/// Bundles and folders carry a trailing slash in the Dock's URLs.
std::string directoryURLString(const FileURL& url) { return url.absoluteString() + "/"; }

} // namespace

SimulatedDock::SimulatedDock(std::shared_ptr<const FileSystem> fileSystem,
                             std::shared_ptr<const PropertyListDecoding> decoder)
    : fileSystem_(std::move(fileSystem)), decoder_(std::move(decoder)) {}

void SimulatedDock::append(PropertyListValue::Dictionary tile) {
  tile.emplace("GUID", nextGUID_++);
  if (file_ || !tiles_) {
    // Pinning onto a missing, invalid or file-backed list starts a fresh scripted one.
    file_.reset();
    invalidValue_.reset();
    tiles_.emplace();
  }
  tiles_->emplace_back(std::move(tile));
}

void SimulatedDock::appendApplication(const FileURL& url,
                                      const std::optional<std::string>& bundleIdentifier,
                                      const std::string& label, bool runningOnly) {
  PropertyListValue::Dictionary tileData{{"file-data", fileData(directoryURLString(url))},
                                         {"file-label", label},
                                         {"file-type", kFileTypeApplication},
                                         {"dock-extra", false}};
  if (bundleIdentifier) {
    tileData.emplace("bundle-identifier", *bundleIdentifier);
  }
  if (runningOnly) {
    tileData.emplace("is-running-only", true);
  }
  append({{"tile-type", "file-tile"}, {"tile-data", std::move(tileData)}});
}

void SimulatedDock::appendSpacer() {
  append({{"tile-type", "spacer-tile"}, {"tile-data", PropertyListValue::Dictionary{}}});
}

void SimulatedDock::appendFolder(const FileURL& url) {
  append(
      {{"tile-type", "directory-tile"},
       {"tile-data", PropertyListValue::Dictionary{{"file-data", fileData(directoryURLString(url))},
                                                   {"file-label", url.lastPathComponent()},
                                                   {"arrangement", 1},
                                                   {"displayas", 0},
                                                   {"showas", 0}}}});
}

void SimulatedDock::appendWebLink(const std::string& url) {
  append({{"tile-type", "url-tile"},
          {"tile-data", PropertyListValue::Dictionary{{"url", fileData(url)}, {"label", url}}}});
}

void SimulatedDock::appendDocument(const FileURL& url) {
  append({{"tile-type", "file-tile"},
          {"tile-data",
           PropertyListValue::Dictionary{{"file-data", fileData(url.absoluteString())},
                                         {"file-label", url.lastPathComponentWithoutExtension()},
                                         {"file-type", 32}}}});
}

void SimulatedDock::clear() {
  file_.reset();
  invalidValue_.reset();
  tiles_.emplace();
}

void SimulatedDock::removePersistentApps() {
  file_.reset();
  invalidValue_.reset();
  tiles_.reset();
}

void SimulatedDock::makePersistentAppsInvalid() {
  file_.reset();
  tiles_.reset();
  invalidValue_ = PropertyListValue::Dictionary{{"tile-type", "file-tile"}};
}

void SimulatedDock::useFile(const std::string& hostPath, const std::string& diskRoot) {
  tiles_.reset();
  invalidValue_.reset();
  file_ = std::make_unique<PropertyListFileDockPreferences>(*fileSystem_, *decoder_, hostPath,
                                                            FileURL::fromPath(diskRoot));
}

bool SimulatedDock::synchronize() {
  if (synchronizationFails_) {
    return false;
  }
  return file_ ? file_->synchronize() : true;
}

std::optional<PropertyListValue> SimulatedDock::copyPersistentApps() const {
  if (file_) {
    return file_->copyPersistentApps();
  }
  if (invalidValue_) {
    return invalidValue_;
  }
  if (tiles_) {
    return PropertyListValue(*tiles_);
  }
  return std::nullopt;
}

} // namespace quenby
