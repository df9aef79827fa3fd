#pragma once

#include <optional>
#include <string>

namespace quenby {

/// Where the running application lives and the file operations that move it. Main thread only.
class ApplicationFileOperating {
public:
  virtual ~ApplicationFileOperating() = default;
  /// The running application's bundle; a bare executable gives the folder that holds it.
  [[nodiscard]] virtual std::optional<std::string> runningBundlePath() const = 0;
  /// The user's home folder; empty when unknown.
  [[nodiscard]] virtual std::string homeDirectory() const = 0;
  [[nodiscard]] virtual bool exists(const std::string& path) const = 0;
  /// Each returns the system's description of a failure, or nothing on success.
  /// Copies a whole bundle; `destination` must not exist yet.
  [[nodiscard]] virtual std::optional<std::string> copyItem(const std::string& source,
                                                            const std::string& destination) = 0;
  /// Into the user's Trash, from where the user can put it back.
  [[nodiscard]] virtual std::optional<std::string> moveItemToTrash(const std::string& path) = 0;
  /// Gone for good: only for what the installer itself just made.
  [[nodiscard]] virtual std::optional<std::string> removeItem(const std::string& path) = 0;
};

/// Knows of no bundle, so nothing is ever offered or moved; every operation fails.
class InertApplicationFileOperations final : public ApplicationFileOperating {
public:
  [[nodiscard]] std::optional<std::string> runningBundlePath() const override {
    return std::nullopt;
  }
  [[nodiscard]] std::string homeDirectory() const override { return {}; }
  [[nodiscard]] bool exists(const std::string&) const override { return false; }
  [[nodiscard]] std::optional<std::string> copyItem(const std::string&,
                                                    const std::string&) override {
    return kUnavailable;
  }
  [[nodiscard]] std::optional<std::string> moveItemToTrash(const std::string&) override {
    return kUnavailable;
  }
  [[nodiscard]] std::optional<std::string> removeItem(const std::string&) override {
    return kUnavailable;
  }

private:
  static constexpr const char* kUnavailable = "Files cannot be changed here.";
};

} // namespace quenby
