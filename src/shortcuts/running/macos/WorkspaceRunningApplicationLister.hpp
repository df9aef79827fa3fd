#pragma once

#include "shortcuts/running/RunningApplicationListing.hpp"

namespace quenby {

/// The shared workspace's running applications and its launch and termination notifications,
/// delivered on the main queue. Main thread only; holds no state.
class WorkspaceRunningApplicationLister final : public RunningApplicationListing {
public:
  [[nodiscard]] std::vector<RunningApplicationProcessSnapshot> runningApplications() const override;
  /// One token for both notifications.
  [[nodiscard]] ObservationToken
  observeLaunchesAndTerminations(std::function<void()> handler) override;
};

} // namespace quenby
