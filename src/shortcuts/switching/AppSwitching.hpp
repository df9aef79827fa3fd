#pragma once

#include "shortcuts/mapping/AppMapping.hpp"
#include "shortcuts/switching/AppSwitchingError.hpp"

#include <functional>
#include <optional>

namespace quenby {

/// Brings a mapped application to the front, launching it when needed.
class AppSwitching {
public:
  /// Receives the failure, or absent when the application was opened.
  using Completion = std::function<void(std::optional<AppSwitchingError> error)>;

  virtual ~AppSwitching() = default;
  /// Calls `completion` exactly once, on the main thread, possibly before returning; never after
  /// the switcher is gone.
  virtual void switchToApplication(const AppMapping& mapping, Completion completion) = 0;
};

/// Switches to nothing and reports success at once.
class InertAppSwitcher final : public AppSwitching {
public:
  void switchToApplication(const AppMapping&, Completion completion) override {
    completion(std::nullopt);
  }
};

} // namespace quenby
