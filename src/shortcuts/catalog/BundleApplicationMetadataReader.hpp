#pragma once

#include "base/FileSystem.hpp"
#include "base/FileURL.hpp"
#include "base/PropertyListDecoding.hpp"
#include "shortcuts/catalog/ApplicationMetadataSnapshot.hpp"

#include <cstdint>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace quenby {

/// Reads an installed application's identity (bundle identifier and display name) from its
/// bundle's Info.plist, together with the fingerprint of the bundle's telling files. While
/// reading, it registers the bundle's icon file (named by "CFBundleIconFile", inside
/// "Contents/Resources") as a watched resource, so that a replaced icon changes the bundle's
/// fingerprint. Attribute reads follow symbolic links, as opening the files would.
///
/// Main thread only; `fileSystem` and `decoder` must outlive the reader.
class BundleApplicationMetadataReader final {
public:
  /// The bundle's own items that open every fingerprint: the bundle directory,
  /// "Contents/Resources", "Contents/Info.plist" and "Contents/Resources/Assets.car".
  static constexpr std::size_t kBundleItemCount = 4;
  /// Info.plist files larger than this are not application metadata; they are not loaded.
  static constexpr std::uint64_t kMaximumInfoPropertyListBytes = 4 * 1024 * 1024;

  BundleApplicationMetadataReader(const FileSystem& fileSystem, const PropertyListDecoding& decoder)
      : fileSystem_(fileSystem), decoder_(decoder) {}

  /// The bundle's metadata, or absent when `bundleURL` is not a readable application bundle
  /// (not an ".app", no readable Info.plist, no bundle identifier).
  [[nodiscard]] std::optional<ApplicationMetadata> readMetadata(const FileURL& bundleURL);
  /// Reads the metadata together with the fingerprint it was read under.
  [[nodiscard]] ApplicationMetadataSnapshot readSnapshot(const FileURL& bundleURL);
  /// True while `fingerprint`, from an earlier snapshot of the same bundle, is still what a
  /// fresh snapshot would hold. Reads the attributes again under the stored paths and allocates
  /// nothing, so that a poll of an unchanged bundle costs only the attribute reads.
  [[nodiscard]] bool isCurrent(const FileURL& bundleURL,
                               const ApplicationFileFingerprint& fingerprint) const;

  /// The compact text form of a fingerprint that becomes `catalogFingerprint`.
  [[nodiscard]] static std::string
  catalogFingerprint(const ApplicationFileFingerprint& fingerprint);

private:
  /// The bundle's own items, then one item per URL of `extraResourceURLs`, in that order.
  [[nodiscard]] ApplicationFileFingerprint
  fingerprint(const FileURL& bundleURL, const std::vector<FileURL>& extraResourceURLs) const;
  [[nodiscard]] const std::vector<FileURL>& watchedResourceURLs(const FileURL& bundleURL) const;
  /// The metadata in `infoPropertyList`; registers the bundle's watched resources.
  std::optional<ApplicationMetadata> interpret(const FileURL& bundleURL,
                                               const PropertyListValue& infoPropertyList);

  const FileSystem& fileSystem_;
  const PropertyListDecoding& decoder_;
  std::unordered_map<FileURL, std::vector<FileURL>> watchedResourceURLsByApplicationURL_;
};

} // namespace quenby
