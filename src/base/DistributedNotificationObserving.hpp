#pragma once

#include "base/ObservationToken.hpp"

#include <functional>
#include <string>

namespace quenby {

/// The system-wide notification centre that other processes post to (the Dock, Launch Services).
/// Handlers run on the main thread; an observation lasts as long as its token.
class DistributedNotificationObserving {
public:
  virtual ~DistributedNotificationObserving() = default;
  [[nodiscard]] virtual ObservationToken observe(const std::string& name,
                                                 std::function<void()> handler) = 0;
};

/// The inert centre: nothing is ever posted.
class InertDistributedNotificationCenter final : public DistributedNotificationObserving {
public:
  [[nodiscard]] ObservationToken observe(const std::string&, std::function<void()>) override {
    return {};
  }
};

} // namespace quenby
