#pragma once

#include <optional>
#include <string>
#include <utility>

namespace quenby {

/// Which application is in front, for the hide-instead-of-switch decision.
class FrontmostApplicationProviding {
public:
  virtual ~FrontmostApplicationProviding() = default;
  /// Absent when no application is in front or it has no bundle identifier.
  [[nodiscard]] virtual std::optional<std::string> frontmostBundleIdentifier() const = 0;
};

/// Answers whatever it was last told; nothing is in front until then.
class InertFrontmostApplicationProvider final : public FrontmostApplicationProviding {
public:
  [[nodiscard]] std::optional<std::string> frontmostBundleIdentifier() const override {
    return frontmostBundleIdentifier_;
  }
  void setFrontmostBundleIdentifier(std::optional<std::string> bundleIdentifier) {
    frontmostBundleIdentifier_ = std::move(bundleIdentifier);
  }

private:
  std::optional<std::string> frontmostBundleIdentifier_;
};

} // namespace quenby
