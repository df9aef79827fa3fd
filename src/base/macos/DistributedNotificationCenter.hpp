#pragma once

#include "base/DistributedNotificationObserving.hpp"

namespace quenby {

/// NSDistributedNotificationCenter's default centre, delivering on the main thread at once, also
/// while the application is inactive. Main thread only; holds no state. Each observation lasts as
/// long as its token, and a notification already on its way when the token goes is dropped.
class DistributedNotificationCenter final : public DistributedNotificationObserving {
public:
  [[nodiscard]] ObservationToken observe(const std::string& name,
                                         std::function<void()> handler) override;
};

} // namespace quenby
