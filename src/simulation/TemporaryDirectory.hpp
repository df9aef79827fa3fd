#pragma once

#include <string>

namespace quenby {

/// A fresh directory under the system's temporary folder, removed with everything in it when
/// the object goes.
class TemporaryDirectory {
public:
  /// Throws std::runtime_error when no directory can be made.
  explicit TemporaryDirectory(const std::string& prefix);
  TemporaryDirectory(const TemporaryDirectory&) = delete;
  TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;
  ~TemporaryDirectory();

  [[nodiscard]] const std::string& path() const { return path_; }

private:
  std::string path_;
};

} // namespace quenby
