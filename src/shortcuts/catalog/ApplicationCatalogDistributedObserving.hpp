#pragma once

#include "base/ObservationToken.hpp"

#include <functional>

namespace quenby {

/// The system-wide notifications that say the application registry changed (an application
/// registered or unregistered, the database rebuilt). Handlers run on the main thread; the
/// observation lasts as long as the token.
class ApplicationCatalogDistributedObserving {
public:
  virtual ~ApplicationCatalogDistributedObserving() = default;
  [[nodiscard]] virtual ObservationToken observe(std::function<void()> handler) = 0;
};

} // namespace quenby
