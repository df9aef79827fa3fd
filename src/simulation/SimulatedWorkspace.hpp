#pragma once

#include "base/MonotonicClock.hpp"
#include "base/ObserverList.hpp"

#include <optional>
#include <set>
#include <string>

namespace quenby {

/// The running applications as the script sets them. It belongs to the world, so it outlives a
/// process: a relaunched program finds the same applications running and the same one in front.
struct SimulatedWorkspace {
  /// Bundle identifiers of the running applications.
  std::set<std::string> running;
  std::optional<std::string> frontmost;
  /// Applications that refuse to hide, as a full-screen one does.
  std::set<std::string> fullScreen;
  /// Script paths whose open fails.
  std::set<std::string> failingOpens;
  /// How long the workspace takes to report an open's outcome.
  Duration openLatency{0};
  /// Told after each launch or termination, as the workspace's notifications are.
  ObserverList<> launchesAndTerminations;

  void launched(const std::string& bundleIdentifier) {
    running.insert(bundleIdentifier);
    launchesAndTerminations.notify();
  }
  void terminated(const std::string& bundleIdentifier) {
    running.erase(bundleIdentifier);
    if (frontmost == bundleIdentifier) {
      frontmost.reset();
    }
    launchesAndTerminations.notify();
  }
};

} // namespace quenby
