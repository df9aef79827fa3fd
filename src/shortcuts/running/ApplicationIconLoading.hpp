#pragma once

#include "base/FileURL.hpp"
#include "shortcuts/running/PreparedApplicationIcon.hpp"

#include <optional>

namespace quenby {

/// Turns an application bundle into its finished icon. Called away from the main thread, one
/// icon at a time but from whichever thread the work scheduler uses, so an implementation keeps
/// no state between calls and touches nothing that the main thread changes.
class ApplicationIconLoading {
public:
  virtual ~ApplicationIconLoading() = default;
  /// Absent when the bundle has no icon the loader can read; the HUD then draws a placeholder.
  [[nodiscard]] virtual std::optional<PreparedApplicationIcon>
  loadIcon(const FileURL& bundleURL) const = 0;
};

/// The inert loader: no bundle has an icon.
class InertApplicationIconLoader final : public ApplicationIconLoading {
public:
  [[nodiscard]] std::optional<PreparedApplicationIcon> loadIcon(const FileURL&) const override {
    return std::nullopt;
  }
};

} // namespace quenby
