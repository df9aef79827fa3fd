#pragma once

#include "base/ObservationToken.hpp"

#include <functional>

namespace quenby {

/// The workspace events after which installed applications may have changed: a volume mounted,
/// unmounted or renamed, an application launched or terminated. Each calls the handler on the
/// main thread; the observation lasts as long as the token.
class ApplicationWorkspaceNotificationObserving {
public:
  virtual ~ApplicationWorkspaceNotificationObserving() = default;
  [[nodiscard]] virtual ObservationToken observe(std::function<void()> handler) = 0;
};

/// The inert observer: nothing ever happens.
class InertApplicationWorkspaceNotificationObserver final
    : public ApplicationWorkspaceNotificationObserving {
public:
  [[nodiscard]] ObservationToken observe(std::function<void()>) override { return {}; }
};

} // namespace quenby
