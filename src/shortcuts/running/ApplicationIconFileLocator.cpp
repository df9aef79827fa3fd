#include "shortcuts/running/ApplicationIconFileLocator.hpp"

#include <string>

namespace quenby {

std::optional<FileURL> ApplicationIconFileLocator::iconFileURL(const FileURL& bundleURL) const {
  const auto bytes = fileSystem_->readFile(bundleURL.appending("Contents/Info.plist").path(),
                                           kMaximumInfoPropertyListBytes);
  if (!bytes) {
    return std::nullopt;
  }
  const auto infoPropertyList = decoder_->decode(*bytes);
  if (!infoPropertyList) {
    return std::nullopt;
  }
  const PropertyListValue* value = infoPropertyList->find("CFBundleIconFile");
  const std::string* name = value ? value->string() : nullptr;
  if (name == nullptr || name->empty()) {
    return std::nullopt;
  }
  const FileURL resources = bundleURL.appending("Contents/Resources");
  // A name that climbs out of the resources ("../../..") is not the bundle's icon.
  for (const FileURL& candidate :
       {resources.appending(*name), resources.appending(*name + ".icns")}) {
    if (candidate.isInside(resources) && isFile(candidate)) {
      return candidate;
    }
  }
  return std::nullopt;
}

bool ApplicationIconFileLocator::isFile(const FileURL& url) const {
  const FileAttributes attributes = fileSystem_->attributes(url.path());
  return attributes.exists && !attributes.isDirectory;
}

} // namespace quenby
