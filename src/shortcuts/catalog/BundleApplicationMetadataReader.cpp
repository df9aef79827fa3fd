#include "shortcuts/catalog/BundleApplicationMetadataReader.hpp"

#include <algorithm>
#include <array>
#include <charconv>

namespace quenby {
namespace {

const std::string* nonEmptyString(const PropertyListValue& dictionary, std::string_view key) {
  const PropertyListValue* value = dictionary.find(key);
  const std::string* text = value ? value->string() : nullptr;
  return text && !text->empty() ? text : nullptr;
}

// True when the fingerprint's items after the bundle's own are exactly `watched`.
bool coversWatchedResources(const ApplicationFileFingerprint& fingerprint,
                            const std::vector<FileURL>& watched) {
  constexpr std::size_t first = BundleApplicationMetadataReader::kBundleItemCount;
  if (fingerprint.items.size() != first + watched.size()) {
    return false;
  }
  for (std::size_t i = 0; i < watched.size(); ++i) {
    if (fingerprint.items[first + i].path != watched[i].path()) {
      return false;
    }
  }
  return true;
}

template <typename T> void appendNumber(std::string& out, T value) {
  std::array<char, 24> buffer{};
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
  out.append(buffer.data(), result.ptr);
}

template <typename T>
void appendOptional(std::string& out, char separator, const std::optional<T>& value) {
  out.push_back(separator);
  if (value) {
    appendNumber(out, *value);
  }
}

} // namespace

std::optional<ApplicationMetadata>
BundleApplicationMetadataReader::readMetadata(const FileURL& bundleURL) {
  return readSnapshot(bundleURL).metadata;
}

ApplicationMetadataSnapshot
BundleApplicationMetadataReader::readSnapshot(const FileURL& bundleURL) {
  ApplicationMetadataSnapshot snapshot;
  // Taken before the read: a change that lands during the read then shows at the next poll.
  snapshot.fingerprint = fingerprint(bundleURL, watchedResourceURLs(bundleURL));
  if (!bundleURL.hasPathExtension("app")) {
    return snapshot;
  }
  const auto bytes = fileSystem_.readFile(bundleURL.path() + "/Contents/Info.plist",
                                          kMaximumInfoPropertyListBytes);
  if (!bytes) {
    return snapshot;
  }
  const auto infoPropertyList = decoder_.decode(*bytes);
  if (!infoPropertyList) {
    return snapshot;
  }
  auto metadata = interpret(bundleURL, *infoPropertyList);
  if (!metadata) {
    return snapshot;
  }
  const auto& watched = watchedResourceURLs(bundleURL);
  if (!coversWatchedResources(snapshot.fingerprint, watched)) {
    // The read registered other resources: add theirs, keeping the bundle's own items as they
    // were before the read.
    auto extended = fingerprint(bundleURL, watched);
    constexpr std::size_t own = kBundleItemCount;
    if (extended.items.size() >= own && snapshot.fingerprint.items.size() >= own) {
      std::copy_n(snapshot.fingerprint.items.begin(), own, extended.items.begin());
      extended.bundleExists = snapshot.fingerprint.bundleExists;
    }
    snapshot.fingerprint = std::move(extended);
  }
  metadata->catalogFingerprint = catalogFingerprint(snapshot.fingerprint);
  snapshot.metadata = std::move(metadata);
  return snapshot;
}

bool BundleApplicationMetadataReader::isCurrent(
    const FileURL& bundleURL, const ApplicationFileFingerprint& fingerprint) const {
  if (!coversWatchedResources(fingerprint, watchedResourceURLs(bundleURL))) {
    return false;
  }
  return std::all_of(fingerprint.items.begin(), fingerprint.items.end(), [this](const auto& item) {
    return item.matches(fileSystem_.attributes(item.path));
  });
}

ApplicationFileFingerprint
BundleApplicationMetadataReader::fingerprint(const FileURL& bundleURL,
                                             const std::vector<FileURL>& extraResourceURLs) const {
  const std::string& bundle = bundleURL.path();
  ApplicationFileFingerprint fingerprint;
  fingerprint.items.resize(kBundleItemCount + extraResourceURLs.size());
  fingerprint.items[0].path = bundle;
  fingerprint.items[1].path = bundle + "/Contents/Resources";
  fingerprint.items[2].path = bundle + "/Contents/Info.plist";
  fingerprint.items[3].path = bundle + "/Contents/Resources/Assets.car";
  for (std::size_t i = 0; i < extraResourceURLs.size(); ++i) {
    fingerprint.items[kBundleItemCount + i].path = extraResourceURLs[i].path();
  }
  for (auto& item : fingerprint.items) {
    item.assign(fileSystem_.attributes(item.path));
  }
  fingerprint.bundleExists = fingerprint.items[0].exists && fingerprint.items[0].isDirectory;
  return fingerprint;
}

std::string
BundleApplicationMetadataReader::catalogFingerprint(const ApplicationFileFingerprint& fingerprint) {
  // Paths are left out: they follow from the bundle's URL, which the metadata is cached under.
  std::string text;
  text.reserve(8 + fingerprint.items.size() * 64);
  text.push_back(fingerprint.bundleExists ? '+' : '-');
  for (const auto& item : fingerprint.items) {
    text.push_back(';');
    text.push_back(!item.exists ? '-' : item.isDirectory ? 'd' : 'f');
    if (!item.exists) {
      continue;
    }
    appendOptional(text, ':', item.fileSystemNumber);
    appendOptional(text, '.', item.fileNumber);
    appendOptional(text, '@', item.modificationDate);
    appendOptional(text, '#', item.fileSize);
  }
  return text;
}

const std::vector<FileURL>&
BundleApplicationMetadataReader::watchedResourceURLs(const FileURL& bundleURL) const {
  static const std::vector<FileURL> none;
  const auto found = watchedResourceURLsByApplicationURL_.find(bundleURL);
  return found == watchedResourceURLsByApplicationURL_.end() ? none : found->second;
}

std::optional<ApplicationMetadata>
BundleApplicationMetadataReader::interpret(const FileURL& bundleURL,
                                           const PropertyListValue& infoPropertyList) {
  const std::string* identifier = nonEmptyString(infoPropertyList, "CFBundleIdentifier");
  if (identifier == nullptr) {
    return std::nullopt;
  }
  ApplicationMetadata metadata;
  metadata.bundleIdentifier = *identifier;
  if (const auto* name = nonEmptyString(infoPropertyList, "CFBundleDisplayName")) {
    metadata.displayName = *name;
  } else if (const auto* bundleName = nonEmptyString(infoPropertyList, "CFBundleName")) {
    metadata.displayName = *bundleName;
  } else {
    metadata.displayName = bundleURL.lastPathComponentWithoutExtension();
  }

  std::vector<FileURL> watched;
  if (const auto* iconFile = nonEmptyString(infoPropertyList, "CFBundleIconFile")) {
    const FileURL resources = bundleURL.appending("Contents/Resources");
    FileURL icon = resources.appending(*iconFile);
    if (icon.pathExtension().empty()) {
      icon = FileURL::fromPath(icon.path() + ".icns");
    }
    // A name that climbs out of the resources, or names the asset catalog, adds nothing.
    if (icon.isInside(resources) && icon != resources.appending("Assets.car")) {
      watched.push_back(std::move(icon));
    }
  }
  if (watched.empty()) {
    watchedResourceURLsByApplicationURL_.erase(bundleURL);
  } else {
    watchedResourceURLsByApplicationURL_.insert_or_assign(bundleURL, std::move(watched));
  }
  return metadata;
}

} // namespace quenby
