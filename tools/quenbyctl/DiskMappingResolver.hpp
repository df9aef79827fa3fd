#pragma once

#include "base/FileURL.hpp"
#include "base/PosixFileSystem.hpp"
#include "base/libplist/LibplistPropertyListDecoder.hpp"
#include "shortcuts/catalog/BundleApplicationMetadataReader.hpp"
#include "shortcuts/catalog/InstalledApplicationLocating.hpp"
#include "shortcuts/catalog/WorkspaceApplicationResolver.hpp"
#include "shortcuts/dock/PropertyListFileDockPreferences.hpp"
#include "shortcuts/mapping/KeyboardMappingSnapshot.hpp"
#include "shortcuts/mapping/LetterMappingRecord.hpp"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace quenby {

/// The mappings of a copied Dock file and of stored letter records, resolved against a disk the
/// way the app resolves them: the Dock through the Dock provider, every application through the
/// one resolver and its catalog. With `root`, the disk begins there (copied applications beside a
/// copied Dock file) and every location is taken below it; without, against nothing but the
/// locations themselves.
class DiskMappingResolver {
public:
  explicit DiskMappingResolver(std::optional<FileURL> root);
  DiskMappingResolver(const DiskMappingResolver&) = delete;
  DiskMappingResolver& operator=(const DiskMappingResolver&) = delete;

  /// Reads the Dock's preferences from `path`; the reason in English when it cannot.
  [[nodiscard]] std::optional<std::string> loadDock(const std::string& path);
  /// The nine positions (all empty when no Dock was loaded) and `letters`, resolved.
  [[nodiscard]] KeyboardMappingSnapshot resolve(const std::vector<LetterMappingRecord>& letters);

private:
  [[nodiscard]] std::map<char, AppMapping>
  resolveLetters(const std::vector<LetterMappingRecord>& letters);

  std::optional<FileURL> root_;
  PosixFileSystem fileSystem_;
  LibplistPropertyListDecoder decoder_;
  BundleApplicationMetadataReader metadataReader_;
  std::unique_ptr<InstalledApplicationLocating> locator_;
  WorkspaceApplicationResolver resolver_;
  std::unique_ptr<PropertyListFileDockPreferences> dock_;
};

} // namespace quenby
