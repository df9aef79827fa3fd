#pragma once

#include "shortcuts/switching/FrontmostApplicationProviding.hpp"

namespace quenby {

/// The shared workspace's front application. Main thread only; no state.
class WorkspaceFrontmostApplicationProvider final : public FrontmostApplicationProviding {
public:
  [[nodiscard]] std::optional<std::string> frontmostBundleIdentifier() const override;
};

} // namespace quenby
