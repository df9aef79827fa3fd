#pragma once

#include "base/DistributedNotificationObserving.hpp"

namespace quenby {

/// NSDistributedNotificationCenter's default centre, delivering on the main queue. Main thread
/// only; holds no state. Each observation lasts as long as its token, and a notification already
/// queued when the token goes is dropped.
class DistributedNotificationCenter final : public DistributedNotificationObserving {
public:
  [[nodiscard]] ObservationToken observe(const std::string& name,
                                         std::function<void()> handler) override;
};

} // namespace quenby
