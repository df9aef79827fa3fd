#pragma once

#include "base/ObservationToken.hpp"
#include "shortcuts/running/RunningApplicationProcessSnapshot.hpp"

#include <functional>
#include <vector>

namespace quenby {

/// The workspace's list of running processes and its launch and termination announcements.
/// Main thread only.
class RunningApplicationListing {
public:
  virtual ~RunningApplicationListing() = default;
  /// Every process the workspace lists right now.
  [[nodiscard]] virtual std::vector<RunningApplicationProcessSnapshot>
  runningApplications() const = 0;
  /// `handler` runs on the main thread after each launch or termination, until the token ends.
  /// A launch may be announced after the process has already quit again.
  [[nodiscard]] virtual ObservationToken
  observeLaunchesAndTerminations(std::function<void()> handler) = 0;
};

/// The inert lister: nothing runs and nothing is announced.
class InertRunningApplicationLister final : public RunningApplicationListing {
public:
  [[nodiscard]] std::vector<RunningApplicationProcessSnapshot>
  runningApplications() const override {
    return {};
  }
  [[nodiscard]] ObservationToken observeLaunchesAndTerminations(std::function<void()>) override {
    return {};
  }
};

} // namespace quenby
