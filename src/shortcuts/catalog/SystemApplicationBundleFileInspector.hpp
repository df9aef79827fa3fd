#pragma once

#include "base/FileSystem.hpp"
#include "shortcuts/catalog/ApplicationBundleFileInspecting.hpp"

namespace quenby {

/// Inspects bundles through the file system. Attribute reads follow symbolic links, as opening
/// the files would. Main thread only; `fileSystem` must outlive the inspector.
class SystemApplicationBundleFileInspector final : public ApplicationBundleFileInspecting {
public:
  /// Info.plist files larger than this are not application metadata; they are not loaded.
  static constexpr std::uint64_t kMaximumInfoPropertyListBytes = 4 * 1024 * 1024;

  explicit SystemApplicationBundleFileInspector(const FileSystem& fileSystem)
      : fileSystem_(fileSystem) {}

  [[nodiscard]] ApplicationFileFingerprint
  fingerprint(const FileURL& bundleURL,
              const std::vector<FileURL>& extraResourceURLs) const override;
  [[nodiscard]] bool isCurrent(const ApplicationFileFingerprint& fingerprint) const override;
  [[nodiscard]] std::optional<std::vector<std::uint8_t>>
  readInfoPropertyList(const FileURL& bundleURL) const override;

private:
  const FileSystem& fileSystem_;
};

} // namespace quenby
