#pragma once

#include "base/FileSystem.hpp"
#include "base/FileURL.hpp"
#include "base/PropertyListDecoding.hpp"
#include "shortcuts/dock/SystemDockPreferenceReader.hpp"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quenby {

/// The Dock's domain kept in a property-list file (a copy of the Dock's preferences, the
/// simulated Mac's Dock): the source behind a `SystemDockPreferenceReader` away from macOS.
/// Main thread only.
class PropertyListFileDockPreferences {
public:
  /// Larger files are not Dock preferences and are refused rather than loaded.
  static constexpr std::uint64_t kMaximumFileBytes = 64ULL * 1024 * 1024;

  /// `fileSystem` and `decoder` must outlive this object. With `pathRoot`, the file describes a
  /// Mac whose disk begins there (a copied Dock file beside copied applications, the simulated
  /// Mac): every item's file URL is taken below it.
  PropertyListFileDockPreferences(const FileSystem& fileSystem, const PropertyListDecoding& decoder,
                                  std::string path, std::optional<FileURL> pathRoot = std::nullopt);

  /// Reads the file again; false when it cannot be read or is not a property list. Unchanged
  /// bytes are not decoded again, so polling an unchanged file costs one read.
  [[nodiscard]] bool synchronize();
  /// The root dictionary's "persistent-apps" as of the last synchronisation; absent when the key
  /// is missing, the root is not a dictionary or the last synchronisation failed.
  [[nodiscard]] std::optional<PropertyListValue> copyPersistentApps() const;
  /// Why the last synchronisation failed, in English for logs and the command line; absent after
  /// a successful one.
  [[nodiscard]] const std::optional<std::string>& lastFailure() const { return lastFailure_; }
  [[nodiscard]] const std::string& path() const { return path_; }

  /// A reader over this file. It refers to this object, which must outlive it.
  [[nodiscard]] SystemDockPreferenceReader makeReader();

private:
  const FileSystem& fileSystem_;
  const PropertyListDecoding& decoder_;
  std::string path_;
  std::optional<FileURL> pathRoot_;
  std::vector<std::uint8_t> lastBytes_;
  bool isLoaded_ = false;
  std::optional<PropertyListValue> persistentApps_;
  std::optional<std::string> lastFailure_;
};

} // namespace quenby
