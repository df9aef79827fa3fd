#pragma once

#include "base/FileSystem.hpp"
#include "base/FileURL.hpp"
#include "shortcuts/catalog/BundleApplicationMetadataReader.hpp"

#include <string>
#include <utility>
#include <vector>

namespace quenby {

/// One application a person can pick.
struct InstalledApplication {
  std::string displayName;
  std::string bundleIdentifier;
  FileURL url;

  friend bool operator==(const InstalledApplication&, const InstalledApplication&) = default;
};

/// The applications installed in the folders where a person keeps them, for the picker. Each
/// folder is listed with the folders inside it that are not bundles themselves (an "Adobe
/// Photoshop" folder holding its application), no deeper.
///
/// Main thread only; `fileSystem` and `metadataReader` must outlive the catalog.
class InstalledApplicationCatalog {
public:
  InstalledApplicationCatalog(const FileSystem& fileSystem,
                              BundleApplicationMetadataReader& metadataReader,
                              std::vector<FileURL> folders)
      : fileSystem_(fileSystem), metadataReader_(metadataReader), folders_(std::move(folders)) {}

  /// "/Applications", its "Utilities", the system's own two and the user's "Applications", each
  /// below `root` (the disk's root on a Mac, the simulated disk elsewhere).
  [[nodiscard]] static std::vector<FileURL> standardFolders(const FileURL& root,
                                                            const FileURL& home);

  /// Reads the folders now: one entry per bundle identifier (ignoring case; the copy in the
  /// earliest folder wins), sorted by name ignoring case.
  [[nodiscard]] std::vector<InstalledApplication> scan() const;

private:
  const FileSystem& fileSystem_;
  BundleApplicationMetadataReader& metadataReader_;
  std::vector<FileURL> folders_;
};

} // namespace quenby
