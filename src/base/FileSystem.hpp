#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quenby {

/// What one `stat` tells about a path: enough to notice that a file was replaced, moved,
/// rewritten or resized without reading it.
struct FileAttributes {
  bool exists = false;
  bool isDirectory = false;
  std::optional<std::uint64_t> fileSystemNumber;
  std::optional<std::uint64_t> fileNumber;
  /// Nanoseconds since the Unix epoch.
  std::optional<std::int64_t> modificationTime;
  std::optional<std::uint64_t> size;
  friend bool operator==(const FileAttributes&, const FileAttributes&) = default;
};

/// The file-system calls the core makes, so that tests can count or fail them.
class FileSystem {
public:
  virtual ~FileSystem() = default;
  /// Follows symbolic links, as opening the file would.
  [[nodiscard]] virtual FileAttributes attributes(const std::string& path) const = 0;
  /// The whole file, or absent when it cannot be read. Files larger than `maximumBytes` are
  /// refused rather than loaded.
  [[nodiscard]] virtual std::optional<std::vector<std::uint8_t>>
  readFile(const std::string& path, std::uint64_t maximumBytes) const = 0;
  /// Entry names (no "." or ".."), sorted; empty when the directory cannot be listed.
  [[nodiscard]] virtual std::vector<std::string> listDirectory(const std::string& path) const = 0;
  /// The absolute path of the item itself, every symbolic link, "." and ".." resolved; absent
  /// when a component does not exist or cannot be searched.
  [[nodiscard]] virtual std::optional<std::string> canonicalPath(const std::string& path) const = 0;
  /// Replaces the file at `path` with `bytes` all at once: a reader sees the old file or the
  /// whole new one, never a part. False when it could not be written; the old file then stays.
  [[nodiscard]] virtual bool writeFileAtomically(const std::string& path,
                                                 const std::vector<std::uint8_t>& bytes) = 0;
};

} // namespace quenby
