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

/// A Dock URL string ("file:///…/" or a plain absolute path) moved below `root`.
PropertyListValue rebasedURLString(const PropertyListValue& value, const std::string& root) {
  const std::string* text = value.string();
  if (text == nullptr || text->empty()) {
    return value;
  }
  if (text->front() == '/') {
    return root + *text;
  }
  const auto url = FileURL::fromString(*text);
  if (!url) {
    return value;
  }
  const std::string rebased = FileURL::fromPath(root + url->path()).absoluteString();
  return text->back() == '/' ? rebased + "/" : rebased;
}

/// The same "persistent-apps", with every item's file URL moved below `root`.
PropertyListValue rebasedPersistentApps(const PropertyListValue& apps, const std::string& root) {
  const auto* items = apps.array();
  if (items == nullptr) {
    return apps;
  }
  PropertyListValue::Array rebased;
  rebased.reserve(items->size());
  for (const auto& item : *items) {
    const PropertyListValue* tileData = item.find("tile-data");
    const PropertyListValue* fileData = tileData ? tileData->find("file-data") : nullptr;
    const PropertyListValue* urlString = fileData ? fileData->find("_CFURLString") : nullptr;
    if (urlString == nullptr) {
      rebased.push_back(item);
      continue;
    }
    auto newFileData = *fileData->dictionary();
    newFileData.insert_or_assign("_CFURLString", rebasedURLString(*urlString, root));
    auto newTileData = *tileData->dictionary();
    newTileData.insert_or_assign("file-data", std::move(newFileData));
    auto newItem = *item.dictionary();
    newItem.insert_or_assign("tile-data", std::move(newTileData));
    rebased.emplace_back(std::move(newItem));
  }
  return rebased;
}

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

void SimulatedDock::useFile(const std::string& hostPath, std::string diskRoot) {
  tiles_.reset();
  invalidValue_.reset();
  fileDiskRoot_ = std::move(diskRoot);
  file_ = std::make_unique<PropertyListFileDockPreferences>(*fileSystem_, *decoder_, hostPath);
}

bool SimulatedDock::synchronize() {
  if (synchronizationFails_) {
    return false;
  }
  return file_ ? file_->synchronize() : true;
}

std::optional<PropertyListValue> SimulatedDock::copyPersistentApps() const {
  if (file_) {
    auto apps = file_->copyPersistentApps();
    return apps ? std::optional(rebasedPersistentApps(*apps, fileDiskRoot_)) : std::nullopt;
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
