#include "shortcuts/dock/PropertyListFileDockPreferences.hpp"

namespace quenby {
namespace {

/// A Dock URL string ("file:///…/" or a plain absolute path) moved below `root`.
PropertyListValue rebasedURLString(const PropertyListValue& value, const FileURL& root) {
  const std::string* text = value.string();
  if (text == nullptr || text->empty()) {
    return value;
  }
  if (text->front() == '/') {
    return root.appending(*text).path();
  }
  const auto url = FileURL::fromString(*text);
  if (!url) {
    return value;
  }
  const std::string rebased = root.appending(url->path()).absoluteString();
  return text->back() == '/' ? rebased + "/" : rebased;
}

/// "persistent-apps" with every item's file URL moved below `root`; anything else as it is.
PropertyListValue rebasedPersistentApps(const PropertyListValue& apps, const FileURL& root) {
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

PropertyListFileDockPreferences::PropertyListFileDockPreferences(
    const FileSystem& fileSystem, const PropertyListDecoding& decoder, std::string path,
    std::optional<FileURL> pathRoot)
    : fileSystem_(fileSystem), decoder_(decoder), path_(std::move(path)),
      pathRoot_(std::move(pathRoot)) {}

bool PropertyListFileDockPreferences::synchronize() {
  auto bytes = fileSystem_.readFile(path_, kMaximumFileBytes);
  if (!bytes) {
    isLoaded_ = false;
    persistentApps_.reset();
    lastBytes_.clear();
    lastFailure_ = path_ + ": cannot be read";
    return false;
  }
  if (isLoaded_ && *bytes == lastBytes_) {
    return true;
  }
  auto decoded = decoder_.decode(*bytes);
  if (!decoded) {
    isLoaded_ = false;
    persistentApps_.reset();
    lastBytes_.clear();
    lastFailure_ = path_ + ": not a property list";
    if (!decoded.error().message.empty()) {
      *lastFailure_ += " (" + decoded.error().message + ")";
    }
    return false;
  }
  // Rebased once per change of the file, not on every read.
  const PropertyListValue* apps = decoded->find(SystemDockPreferenceReader::kPersistentAppsKey);
  if (apps == nullptr) {
    persistentApps_.reset();
  } else {
    persistentApps_ = pathRoot_ ? rebasedPersistentApps(*apps, *pathRoot_) : *apps;
  }
  isLoaded_ = true;
  lastBytes_ = std::move(*bytes);
  lastFailure_.reset();
  return true;
}

std::optional<PropertyListValue> PropertyListFileDockPreferences::copyPersistentApps() const {
  return persistentApps_;
}

SystemDockPreferenceReader PropertyListFileDockPreferences::makeReader() {
  return SystemDockPreferenceReader([this] { return synchronize(); },
                                    [this] { return copyPersistentApps(); });
}

} // namespace quenby
