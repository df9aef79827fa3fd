#pragma once

#include "base/FileURL.hpp"
#include "base/PropertyListValue.hpp"
#include "simulation/TemporaryDirectory.hpp"

#include <string>
#include <string_view>

namespace quenby {

/// A temporary directory tree of real ".app" bundles with real binary Info.plist files, removed
/// with everything in it when the fixture goes. Every path argument is taken relative to the
/// root unless it is absolute.
class ApplicationBundleFixture {
public:
  /// The icon file every created bundle names and carries in its resources.
  static constexpr std::string_view kIconFileName = "AppIcon.icns";

  ApplicationBundleFixture();

  [[nodiscard]] const FileURL& root() const { return root_; }
  [[nodiscard]] FileURL url(std::string_view path) const;

  /// Creates a bundle whose Info.plist names `bundleIdentifier` and `name` and the icon file
  /// `kIconFileName`, which it also holds. Returns the bundle's URL.
  FileURL createBundle(std::string_view path, std::string_view bundleIdentifier,
                       std::string_view name);
  /// Replaces the bundle's Info.plist with `infoPropertyList`, in binary form.
  void writeInfoPropertyList(std::string_view bundlePath,
                             const PropertyListValue& infoPropertyList);
  /// Writes a file, creating the folders above it.
  void writeFile(std::string_view path, std::string_view contents);
  /// Moves the modification time one second on, so that the change shows on any file system.
  void touch(std::string_view path);
  /// Removes a file or a whole folder.
  void remove(std::string_view path);
  /// Renames, creating the folders above the destination.
  void move(std::string_view from, std::string_view to);

private:
  [[nodiscard]] std::string absolute(std::string_view path) const;

  TemporaryDirectory directory_;
  FileURL root_;
};

} // namespace quenby
