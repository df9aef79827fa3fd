#pragma once

#include "shortcuts/catalog/ApplicationWorkspaceNotificationObserving.hpp"

namespace quenby {

/// NSWorkspace's own notification centre: volumes mounted, unmounted or renamed, applications
/// launched or terminated, delivered on the main queue. Main thread only; holds no state.
class SystemApplicationWorkspaceNotificationObserver final
    : public ApplicationWorkspaceNotificationObserving {
public:
  /// One token for all five notifications.
  [[nodiscard]] ObservationToken observe(std::function<void()> handler) override;
};

} // namespace quenby
