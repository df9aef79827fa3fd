#pragma once

#include "base/FileURL.hpp"
#include "shortcuts/catalog/ApplicationFileFingerprint.hpp"

#include <cstdint>
#include <optional>
#include <vector>

namespace quenby {

/// Reads an application bundle's files: their attributes for the fingerprint and its
/// Info.plist.
class ApplicationBundleFileInspecting {
public:
  /// The bundle's own items that open every fingerprint: the bundle directory,
  /// "Contents/Resources", "Contents/Info.plist" and "Contents/Resources/Assets.car".
  static constexpr std::size_t kBundleItemCount = 4;

  virtual ~ApplicationBundleFileInspecting() = default;
  /// The bundle's own items, then one item per URL of `extraResourceURLs`, in that order.
  [[nodiscard]] virtual ApplicationFileFingerprint
  fingerprint(const FileURL& bundleURL, const std::vector<FileURL>& extraResourceURLs) const = 0;
  /// True while `fingerprint`, taken earlier, is still what its items' attributes say. Reads
  /// the attributes again under the stored paths and allocates nothing, so that a poll of an
  /// unchanged bundle costs only the attribute reads.
  [[nodiscard]] virtual bool isCurrent(const ApplicationFileFingerprint& fingerprint) const = 0;
  /// The bytes of "Contents/Info.plist", or absent when it cannot be read.
  [[nodiscard]] virtual std::optional<std::vector<std::uint8_t>>
  readInfoPropertyList(const FileURL& bundleURL) const = 0;
};

} // namespace quenby
