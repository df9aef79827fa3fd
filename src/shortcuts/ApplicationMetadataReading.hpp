#pragma once

#include "base/FileURL.hpp"
#include "shortcuts/ApplicationMetadataSnapshot.hpp"

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

/// The inert reader: finds no application.
class InertApplicationMetadataReader final : public ApplicationMetadataReading {
public:
  [[nodiscard]] std::optional<ApplicationMetadata> readMetadata(const FileURL&) override {
    return std::nullopt;
  }
  [[nodiscard]] ApplicationMetadataSnapshot readSnapshot(const FileURL&) override { return {}; }
  [[nodiscard]] bool isCurrent(const FileURL&, const ApplicationFileFingerprint&) const override {
    return true;
  }
};

} // namespace quenby
