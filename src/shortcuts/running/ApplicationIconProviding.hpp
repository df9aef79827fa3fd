#pragma once

#include "base/ObservationToken.hpp"
#include "shortcuts/mapping/AppMapping.hpp"
#include "shortcuts/running/PreparedApplicationIcon.hpp"

#include <functional>
#include <memory>

namespace quenby {

/// The icons of the mapped applications, for everything that draws mappings. Main thread only.
class ApplicationIconProviding {
public:
  virtual ~ApplicationIconProviding() = default;
  /// The icon of a resolved mapping's application once it has loaded; null while it is loading
  /// and for a mapping that is not resolved.
  [[nodiscard]] virtual std::shared_ptr<const PreparedApplicationIcon>
  icon(const AppMapping& mapping) const = 0;
  /// `handler` is called each time an icon arrives, until the token ends.
  [[nodiscard]] virtual ObservationToken observeIcons(std::function<void()> handler) = 0;
};

/// The inert provider: no icon ever arrives.
class InertApplicationIconProvider final : public ApplicationIconProviding {
public:
  [[nodiscard]] std::shared_ptr<const PreparedApplicationIcon>
  icon(const AppMapping&) const override {
    return nullptr;
  }
  [[nodiscard]] ObservationToken observeIcons(std::function<void()>) override { return {}; }
};

} // namespace quenby
