#pragma once

#include "base/FileSystem.hpp"
#include "base/Hashing.hpp"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quenby {

/// What the file system says about an application bundle's telling files, cheap enough to take
/// on every catalog poll. Any replacement, move, rewrite or resize of one of them changes it.
struct ApplicationFileFingerprint {
  struct Item {
    std::string path;
    bool exists = false;
    bool isDirectory = false;
    /// Volume and file identity.
    std::optional<std::uint64_t> fileSystemNumber;
    std::optional<std::uint64_t> fileNumber;
    /// Nanoseconds since the Unix epoch.
    std::optional<std::int64_t> modificationDate;
    std::optional<std::uint64_t> fileSize;

    /// Takes the attributes, keeping the path.
    void assign(const FileAttributes& attributes);
    /// True when `attributes` are the ones this item holds.
    [[nodiscard]] bool matches(const FileAttributes& attributes) const;

    friend bool operator==(const Item&, const Item&) = default;
  };

  bool bundleExists = false;
  /// In order: the bundle directory, "Contents/Resources", "Contents/Info.plist",
  /// "Contents/Resources/Assets.car", then the resources registered for the bundle.
  std::vector<Item> items;

  friend bool operator==(const ApplicationFileFingerprint&,
                         const ApplicationFileFingerprint&) = default;
};

} // namespace quenby

template <> struct std::hash<quenby::ApplicationFileFingerprint> {
  std::size_t operator()(const quenby::ApplicationFileFingerprint& fingerprint) const noexcept;
};
