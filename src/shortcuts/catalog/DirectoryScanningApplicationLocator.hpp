#pragma once

#include "base/FileSystem.hpp"
#include "shortcuts/catalog/BundleApplicationMetadataReader.hpp"
#include "shortcuts/catalog/InstalledApplicationLocating.hpp"

#include <map>

namespace quenby {

/// Locates applications by scanning a directory tree for ".app" bundles, where the system's
/// application registry is not available (the simulation, tools). It never descends into a
/// bundle, follows each directory only once however many links lead to it, and passes over
/// directories it cannot list. The scan runs on construction and on `rescan()`; lookups answer
/// from its result.
///
/// Main thread only; `fileSystem` and `metadataReader` must outlive the locator.
class DirectoryScanningApplicationLocator final : public InstalledApplicationLocating {
public:
  DirectoryScanningApplicationLocator(const FileSystem& fileSystem,
                                      BundleApplicationMetadataReader& metadataReader,
                                      FileURL root);

  /// Bundles in the order the scan met them: directory entries sorted by name, depth first.
  [[nodiscard]] std::vector<FileURL>
  applicationURLs(const std::string& bundleIdentifier) const override;
  void rescan();

private:
  const FileSystem& fileSystem_;
  BundleApplicationMetadataReader& metadataReader_;
  FileURL root_;
  std::map<std::string, std::vector<FileURL>, std::less<>> urlsByBundleIdentifier_;
};

} // namespace quenby
