#pragma once

#include "base/PropertyListDecoding.hpp"
#include "shortcuts/catalog/ApplicationBundleFileInspecting.hpp"
#include "shortcuts/catalog/ApplicationMetadataReading.hpp"

#include <string>
#include <unordered_map>
#include <vector>

namespace quenby {

/// Reads bundle identifier and display name from a bundle's Info.plist. While reading, it
/// registers the bundle's icon file (named by "CFBundleIconFile", inside "Contents/Resources")
/// as a watched resource, so that a replaced icon changes the bundle's fingerprint. The
/// resources' "Assets.car" is always among the fingerprint's own items.
///
/// Main thread only; `inspector` and `decoder` must outlive the reader.
class BundleApplicationMetadataReader final : public ApplicationMetadataReading {
public:
  BundleApplicationMetadataReader(const ApplicationBundleFileInspecting& inspector,
                                  const PropertyListDecoding& decoder)
      : inspector_(inspector), decoder_(decoder) {}

  [[nodiscard]] std::optional<ApplicationMetadata> readMetadata(const FileURL& bundleURL) override;
  [[nodiscard]] ApplicationMetadataSnapshot readSnapshot(const FileURL& bundleURL) override;
  [[nodiscard]] bool isCurrent(const FileURL& bundleURL,
                               const ApplicationFileFingerprint& fingerprint) const override;

  /// The compact text form of a fingerprint that becomes `catalogFingerprint`.
  [[nodiscard]] static std::string
  catalogFingerprint(const ApplicationFileFingerprint& fingerprint);

private:
  [[nodiscard]] const std::vector<FileURL>& watchedResourceURLs(const FileURL& bundleURL) const;
  /// The metadata in `infoPropertyList`; registers the bundle's watched resources.
  std::optional<ApplicationMetadata> interpret(const FileURL& bundleURL,
                                               const PropertyListValue& infoPropertyList);

  const ApplicationBundleFileInspecting& inspector_;
  const PropertyListDecoding& decoder_;
  std::unordered_map<FileURL, std::vector<FileURL>> watchedResourceURLsByApplicationURL_;
};

} // namespace quenby
