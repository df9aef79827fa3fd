#pragma once

#include "base/FileSystem.hpp"

namespace quenby {

/// The real file system through POSIX calls (macOS and Linux alike).
class PosixFileSystem final : public FileSystem {
public:
  [[nodiscard]] FileAttributes attributes(const std::string& path) const override;
  [[nodiscard]] std::optional<std::vector<std::uint8_t>>
  readFile(const std::string& path, std::uint64_t maximumBytes) const override;
  [[nodiscard]] std::vector<std::string> listDirectory(const std::string& path) const override;
  [[nodiscard]] std::optional<std::string> canonicalPath(const std::string& path) const override;
  [[nodiscard]] bool writeFileAtomically(const std::string& path,
                                         const std::vector<std::uint8_t>& bytes) override;
};

} // namespace quenby
