#pragma once

#include "base/LifetimeGuard.hpp"
#include "base/MainScheduler.hpp"
#include "base/ObserverList.hpp"
#include "shortcuts/running/RunningApplicationListing.hpp"
#include "shortcuts/running/RunningApplicationMonitoring.hpp"

namespace quenby {

/// Keeps the set of running applications' bundle identifiers while started: it takes the set at
/// start and again after launches and terminations, and tells its observers only when the set
/// changed.
///
/// A burst of announcements (a login starts dozens of applications) costs one listing: the
/// recompute is posted to the main thread's next turn and runs once for all announcements that
/// arrived before it. Stopping cancels a posted recompute, so one posted before a stop can never
/// run after a later start.
///
/// Main thread only. `workspace` and `scheduler` must outlive the monitor.
class WorkspaceRunningApplicationMonitor final : public RunningApplicationMonitoring {
public:
  WorkspaceRunningApplicationMonitor(RunningApplicationListing& workspace, MainScheduler& scheduler)
      : workspace_(workspace), scheduler_(scheduler) {}
  WorkspaceRunningApplicationMonitor(const WorkspaceRunningApplicationMonitor&) = delete;
  WorkspaceRunningApplicationMonitor& operator=(const WorkspaceRunningApplicationMonitor&) = delete;
  ~WorkspaceRunningApplicationMonitor() override;

  /// Subscribes and takes the set at once; does nothing while started.
  void start();
  /// Unsubscribes; the set keeps its last value.
  void stop();
  [[nodiscard]] bool isRunning() const { return isRunning_; }

  [[nodiscard]] const std::set<std::string>& runningBundleIdentifiers() const override {
    return runningBundleIdentifiers_;
  }
  [[nodiscard]] ObservationToken observe(std::function<void()> handler) override {
    return observers_.add(std::move(handler));
  }

private:
  void postRecompute();
  void recompute();

  std::set<std::string> runningBundleIdentifiers_;
  ObserverList<> observers_;
  RunningApplicationListing& workspace_;
  MainScheduler& scheduler_;
  ObservationToken notificationToken_;
  ObservationToken pendingRecompute_;
  bool isRunning_ = false;
  LifetimeGuard guard_;
};

} // namespace quenby
