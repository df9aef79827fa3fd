#include "shortcuts/running/WorkspaceRunningApplicationMonitor.hpp"

namespace quenby {

WorkspaceRunningApplicationMonitor::~WorkspaceRunningApplicationMonitor() { stop(); }

void WorkspaceRunningApplicationMonitor::start() {
  if (isRunning_) {
    return;
  }
  isRunning_ = true;
  notificationToken_ =
      workspace_.observeLaunchesAndTerminations(guard_.weak([this] { postRecompute(); }));
  recompute();
}

void WorkspaceRunningApplicationMonitor::stop() {
  if (!isRunning_) {
    return;
  }
  isRunning_ = false;
  notificationToken_.cancel();
  pendingRecompute_.cancel();
}

void WorkspaceRunningApplicationMonitor::postRecompute() {
  if (!isRunning_ || !pendingRecompute_.isCancelled()) {
    return;
  }
  pendingRecompute_ = scheduler_.post(guard_.weak([this] {
    pendingRecompute_ = ObservationToken();
    recompute();
  }));
}

void WorkspaceRunningApplicationMonitor::recompute() {
  std::set<std::string> running;
  for (auto& process : workspace_.runningApplications()) {
    if (!process.isTerminated && process.bundleIdentifier && !process.bundleIdentifier->empty()) {
      running.insert(std::move(*process.bundleIdentifier));
    }
  }
  if (running == runningBundleIdentifiers_) {
    return;
  }
  runningBundleIdentifiers_ = std::move(running);
  observers_.notify();
}

} // namespace quenby
