#include "shortcuts/catalog/ApplicationFileFingerprint.hpp"

namespace quenby {

void ApplicationFileFingerprint::Item::assign(const FileAttributes& attributes) {
  exists = attributes.exists;
  isDirectory = attributes.isDirectory;
  fileSystemNumber = attributes.fileSystemNumber;
  fileNumber = attributes.fileNumber;
  modificationDate = attributes.modificationTime;
  fileSize = attributes.size;
}

bool ApplicationFileFingerprint::Item::matches(const FileAttributes& attributes) const {
  return exists == attributes.exists && isDirectory == attributes.isDirectory &&
         fileSystemNumber == attributes.fileSystemNumber && fileNumber == attributes.fileNumber &&
         modificationDate == attributes.modificationTime && fileSize == attributes.size;
}

} // namespace quenby

namespace {

template <typename T> void hashOptional(std::size_t& seed, const std::optional<T>& value) {
  quenby::hashCombine(seed, value.has_value());
  if (value) {
    quenby::hashCombine(seed, *value);
  }
}

} // namespace

std::size_t std::hash<quenby::ApplicationFileFingerprint>::operator()(
    const quenby::ApplicationFileFingerprint& fingerprint) const noexcept {
  std::size_t seed = 0;
  quenby::hashCombine(seed, fingerprint.bundleExists);
  quenby::hashCombine(seed, fingerprint.items.size());
  for (const auto& item : fingerprint.items) {
    quenby::hashCombine(seed, item.path);
    quenby::hashCombine(seed, item.exists);
    quenby::hashCombine(seed, item.isDirectory);
    hashOptional(seed, item.fileSystemNumber);
    hashOptional(seed, item.fileNumber);
    hashOptional(seed, item.modificationDate);
    hashOptional(seed, item.fileSize);
  }
  return seed;
}
