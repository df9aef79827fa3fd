#pragma once

#include "base/ObservationToken.hpp"

#include <functional>

namespace quenby {

/// Watches the installed applications and says once per catalog revision that they changed.
class ApplicationCatalogMonitoring {
public:
  virtual ~ApplicationCatalogMonitoring() = default;
  /// Does nothing while running.
  virtual void start() = 0;
  /// Does nothing unless running.
  virtual void stop() = 0;
  /// `handler` hears every new catalog revision until the token ends; every observer hears
  /// every revision, in the order they registered.
  [[nodiscard]] virtual ObservationToken observe(std::function<void()> handler) = 0;
};

} // namespace quenby
