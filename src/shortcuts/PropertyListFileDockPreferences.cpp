#include "shortcuts/PropertyListFileDockPreferences.hpp"

namespace quenby {

PropertyListFileDockPreferences::PropertyListFileDockPreferences(
    const FileSystem& fileSystem, const PropertyListDecoding& decoder, std::string path)
    : fileSystem_(fileSystem), decoder_(decoder), path_(std::move(path)) {}

bool PropertyListFileDockPreferences::synchronize() {
  auto bytes = fileSystem_.readFile(path_, kMaximumFileBytes);
  if (!bytes) {
    root_.reset();
    lastBytes_.clear();
    lastFailure_ = path_ + ": cannot be read";
    return false;
  }
  if (root_ && *bytes == lastBytes_) {
    return true;
  }
  auto decoded = decoder_.decode(*bytes);
  if (!decoded) {
    root_.reset();
    lastBytes_.clear();
    lastFailure_ = path_ + ": not a property list";
    if (!decoded.error().message.empty()) {
      *lastFailure_ += " (" + decoded.error().message + ")";
    }
    return false;
  }
  root_ = std::move(decoded.value());
  lastBytes_ = std::move(*bytes);
  lastFailure_.reset();
  return true;
}

std::optional<PropertyListValue> PropertyListFileDockPreferences::copyPersistentApps() const {
  const PropertyListValue* value =
      root_ ? root_->find(SystemDockPreferenceReader::kPersistentAppsKey) : nullptr;
  if (value == nullptr) {
    return std::nullopt;
  }
  return *value;
}

SystemDockPreferenceReader PropertyListFileDockPreferences::makeReader() {
  return SystemDockPreferenceReader([this] { return synchronize(); },
                                    [this] { return copyPersistentApps(); });
}

} // namespace quenby
