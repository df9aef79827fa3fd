#pragma once

#include "base/LifetimeGuard.hpp"
#include "base/MainScheduler.hpp"
#include "base/ObservationToken.hpp"
#include "data/usage/UsageAnalyticsRecording.hpp"
#include "shortcuts/switching/AppSwitchCommandSubmitting.hpp"
#include "shortcuts/switching/AppSwitchFailureHandling.hpp"
#include "shortcuts/switching/AppSwitching.hpp"

#include <cstdint>
#include <deque>

namespace quenby {

/// Runs switch requests strictly one after another, in submission order: the next application is
/// opened only once the previous open has completed or failed, so two quick shortcuts never race
/// each other to the front. Each accepted request is counted when it arrives and its outcome when
/// it ends. The drain runs as deferred main-thread work; `stop()` ends it for good, and a switch
/// already waiting on the workspace when it stops only has its outcome counted.
/// Main thread only; every reference must outlive the queue.
class AppSwitchCommandQueue final : public AppSwitchCommandSubmitting {
public:
  AppSwitchCommandQueue(AppSwitching& appSwitcher, AppSwitchFailureHandling& failureHandler,
                        UsageAnalyticsRecording& usageAnalytics, MainScheduler& scheduler)
      : appSwitcher_(appSwitcher), failureHandler_(failureHandler), usageAnalytics_(usageAnalytics),
        scheduler_(scheduler) {}
  AppSwitchCommandQueue(const AppSwitchCommandQueue&) = delete;
  AppSwitchCommandQueue& operator=(const AppSwitchCommandQueue&) = delete;

  /// Ignored once stopped.
  void submit(const AppMapping& mapping) override;
  /// Drops pending requests and refuses new ones, for good. A second call does nothing.
  void stop();

  [[nodiscard]] bool acceptsCommands() const { return acceptsCommands_; }
  [[nodiscard]] std::size_t pendingCount() const { return pendingMappings_.size(); }

private:
  /// The drain's state while it runs; absent when idle.
  struct Worker {
    /// The generation the drain was started in: a drain that outlives `stop()` sees it differ.
    std::uint64_t generation = 0;
    /// The drain's next step, when one is scheduled rather than waiting on a switch.
    ObservationToken nextStep;
  };

  void scheduleDrainStep(std::uint64_t generation);
  void drainStep(std::uint64_t generation);
  void switchFinished(std::uint64_t generation, const AppMapping& mapping,
                      const std::optional<AppSwitchingError>& error);
  [[nodiscard]] bool isCurrent(std::uint64_t generation) const;

  AppSwitching& appSwitcher_;
  AppSwitchFailureHandling& failureHandler_;
  UsageAnalyticsRecording& usageAnalytics_;
  MainScheduler& scheduler_;
  std::deque<AppMapping> pendingMappings_;
  std::optional<Worker> worker_;
  std::uint64_t generation_ = 0;
  bool acceptsCommands_ = true;
  LifetimeGuard lifetime_;
};

} // namespace quenby
