#pragma once

#include <compare>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace quenby {

/// A standardised file URL: always an absolute path with no ".", "..", empty or trailing
/// components, so two URLs naming the same location compare equal however they were written
/// ("/Applications/Safari.app/", "file:///Applications/./Safari.app"). Symbolic links are not
/// resolved: that would touch the disk.
class FileURL {
public:
  /// The root directory.
  FileURL() = default;

  /// A relative path is taken from the root, never from the process's working directory.
  [[nodiscard]] static FileURL fromPath(std::string_view path);
  /// Parses a "file:" URL string: an empty host or "localhost", then the percent-encoded path
  /// (query and fragment are dropped). Absent for another scheme, another host or a bad escape.
  [[nodiscard]] static std::optional<FileURL> fromString(std::string_view text);

  [[nodiscard]] const std::string& path() const { return path_; }
  /// The percent-encoded "file:///…" form.
  [[nodiscard]] std::string absoluteString() const;
  [[nodiscard]] std::string lastPathComponent() const;
  /// The text after the last dot of the last component; empty for none or a leading dot only.
  [[nodiscard]] std::string pathExtension() const;
  /// True when `pathExtension()` is `extension`, ignoring ASCII case: the default volumes of a
  /// Mac ignore case, so "Mail.APP" is as much an application bundle as "Mail.app".
  [[nodiscard]] bool hasPathExtension(std::string_view extension) const;
  [[nodiscard]] std::string lastPathComponentWithoutExtension() const;
  [[nodiscard]] FileURL appending(std::string_view relativePath) const;
  [[nodiscard]] FileURL deletingLastPathComponent() const;
  /// True when this URL lies strictly inside `directory`.
  [[nodiscard]] bool isInside(const FileURL& directory) const;

  friend bool operator==(const FileURL&, const FileURL&) = default;
  friend std::strong_ordering operator<=>(const FileURL&, const FileURL&) = default;

private:
  explicit FileURL(std::string standardizedPath) : path_(std::move(standardizedPath)) {}

  std::string path_ = "/";
};

} // namespace quenby

template <> struct std::hash<quenby::FileURL> {
  std::size_t operator()(const quenby::FileURL& url) const noexcept {
    return std::hash<std::string>{}(url.path());
  }
};
