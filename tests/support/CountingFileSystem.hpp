#pragma once

#include "base/PosixFileSystem.hpp"

namespace quenby {

/// The real file system, counting each kind of call, so that a test can tell what a refresh
/// cost: attribute reads only, or file reads, listings and link resolutions as well.
class CountingFileSystem final : public FileSystem {
public:
  struct Calls {
    int attributes = 0;
    int readFile = 0;
    int listDirectory = 0;
    int canonicalPath = 0;
    friend bool operator==(const Calls&, const Calls&) = default;
  };

  [[nodiscard]] FileAttributes attributes(const std::string& path) const override {
    ++calls.attributes;
    return real_.attributes(path);
  }
  [[nodiscard]] std::optional<std::vector<std::uint8_t>>
  readFile(const std::string& path, std::uint64_t maximumBytes) const override {
    ++calls.readFile;
    return real_.readFile(path, maximumBytes);
  }
  [[nodiscard]] std::vector<std::string> listDirectory(const std::string& path) const override {
    ++calls.listDirectory;
    return real_.listDirectory(path);
  }
  [[nodiscard]] std::optional<std::string> canonicalPath(const std::string& path) const override {
    ++calls.canonicalPath;
    return real_.canonicalPath(path);
  }

  [[nodiscard]] bool writeFileAtomically(const std::string& path,
                                         const std::vector<std::uint8_t>& bytes) override {
    return real_.writeFileAtomically(path, bytes);
  }

  /// The calls made while `action` ran.
  template <typename F> Calls during(F action) const {
    const Calls before = calls;
    action();
    return {calls.attributes - before.attributes, calls.readFile - before.readFile,
            calls.listDirectory - before.listDirectory, calls.canonicalPath - before.canonicalPath};
  }

  mutable Calls calls;

private:
  PosixFileSystem real_;
};

} // namespace quenby
