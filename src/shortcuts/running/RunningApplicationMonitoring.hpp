#pragma once

#include "base/ObservationToken.hpp"

#include <functional>
#include <set>
#include <string>

namespace quenby {

/// Which applications are running, by bundle identifier, for everything that marks running
/// mappings. Main thread only.
class RunningApplicationMonitoring {
public:
  virtual ~RunningApplicationMonitoring() = default;
  [[nodiscard]] virtual const std::set<std::string>& runningBundleIdentifiers() const = 0;
  /// `handler` is called after each change of the set until the token ends.
  [[nodiscard]] virtual ObservationToken observe(std::function<void()> handler) = 0;
};

/// The inert monitor: the set is whatever was last assigned, and nobody is told.
class InertRunningApplicationMonitor final : public RunningApplicationMonitoring {
public:
  [[nodiscard]] const std::set<std::string>& runningBundleIdentifiers() const override {
    return running_;
  }
  void setRunningBundleIdentifiers(std::set<std::string> running) { running_ = std::move(running); }
  [[nodiscard]] ObservationToken observe(std::function<void()>) override { return {}; }

private:
  std::set<std::string> running_;
};

} // namespace quenby
