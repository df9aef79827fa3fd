#pragma once

#include "base/FileURL.hpp"
#include "shortcuts/catalog/ApplicationMetadataSnapshot.hpp"

#include <optional>

namespace quenby {

/// Reads an installed application's identity from its bundle.
class ApplicationMetadataReading {
public:
  virtual ~ApplicationMetadataReading() = default;
  /// The bundle's metadata, or absent when `bundleURL` is not a readable application bundle
  /// (not an ".app", no readable Info.plist, no bundle identifier).
  [[nodiscard]] virtual std::optional<ApplicationMetadata>
  readMetadata(const FileURL& bundleURL) = 0;
  /// Reads the metadata together with the fingerprint it was read under.
  [[nodiscard]] virtual ApplicationMetadataSnapshot readSnapshot(const FileURL& bundleURL) = 0;
  /// True while `fingerprint`, from an earlier snapshot of the same bundle, is still what a
  /// fresh snapshot would hold. Reads file attributes only and allocates nothing.
  [[nodiscard]] virtual bool isCurrent(const FileURL& bundleURL,
                                       const ApplicationFileFingerprint& fingerprint) const = 0;
};

} // namespace quenby
