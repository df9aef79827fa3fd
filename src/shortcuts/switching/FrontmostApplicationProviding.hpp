#pragma once

#include <optional>
#include <string>
#include <utility>

namespace quenby {

/// Names the application the user is working in.
class FrontmostApplicationProviding {
public:
  virtual ~FrontmostApplicationProviding() = default;
  /// None when no application is frontmost or it has no bundle identifier.
  [[nodiscard]] virtual std::optional<std::string> frontmostBundleIdentifier() const = 0;
};

/// Answers with whatever was last set; nothing at first.
class InertFrontmostApplicationProvider final : public FrontmostApplicationProviding {
public:
  [[nodiscard]] std::optional<std::string> frontmostBundleIdentifier() const override {
    return frontmostBundleIdentifier_;
  }
  void setFrontmostBundleIdentifier(std::optional<std::string> identifier) {
    frontmostBundleIdentifier_ = std::move(identifier);
  }

private:
  std::optional<std::string> frontmostBundleIdentifier_;
};

} // namespace quenby
