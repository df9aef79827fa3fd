#include "shortcuts/catalog/SystemApplicationBundleFileInspector.hpp"

namespace quenby {

ApplicationFileFingerprint SystemApplicationBundleFileInspector::fingerprint(
    const FileURL& bundleURL, const std::vector<FileURL>& extraResourceURLs) const {
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

bool SystemApplicationBundleFileInspector::isCurrent(
    const ApplicationFileFingerprint& fingerprint) const {
  for (const auto& item : fingerprint.items) {
    if (!item.matches(fileSystem_.attributes(item.path))) {
      return false;
    }
  }
  return true;
}

std::optional<std::vector<std::uint8_t>>
SystemApplicationBundleFileInspector::readInfoPropertyList(const FileURL& bundleURL) const {
  return fileSystem_.readFile(bundleURL.path() + "/Contents/Info.plist",
                              kMaximumInfoPropertyListBytes);
}

} // namespace quenby
