#pragma once

#include "base/FileSystem.hpp"
#include "base/FileURL.hpp"
#include "base/PropertyListDecoding.hpp"

#include <cstdint>
#include <memory>
#include <optional>

namespace quenby {

/// Finds the icon file an application bundle names: "CFBundleIconFile" from its
/// "Contents/Info.plist", looked up in "Contents/Resources" as written and then with ".icns"
/// appended, since bundles often leave the extension out.
///
/// Safe on any thread as long as `fileSystem` and `decoder` are; it keeps no state of its own.
class ApplicationIconFileLocator final {
public:
  /// Info.plist files larger than this are not application metadata; they are not loaded.
  static constexpr std::uint64_t kMaximumInfoPropertyListBytes = 4 * 1024 * 1024;

  ApplicationIconFileLocator(std::shared_ptr<const FileSystem> fileSystem,
                             std::shared_ptr<const PropertyListDecoding> decoder)
      : fileSystem_(std::move(fileSystem)), decoder_(std::move(decoder)) {}

  /// The existing icon file inside the bundle's resources; absent when the bundle names none,
  /// names one that is missing, or names a path outside its resources.
  [[nodiscard]] std::optional<FileURL> iconFileURL(const FileURL& bundleURL) const;

  [[nodiscard]] const FileSystem& fileSystem() const { return *fileSystem_; }

private:
  [[nodiscard]] bool isFile(const FileURL& url) const;

  std::shared_ptr<const FileSystem> fileSystem_;
  std::shared_ptr<const PropertyListDecoding> decoder_;
};

} // namespace quenby
