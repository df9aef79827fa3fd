#pragma once

#include "base/MainScheduler.hpp"
#include "base/ObservationToken.hpp"
#include "base/ObserverList.hpp"
#include "hud/access/KeyboardAccessCondition.hpp"
#include "hud/access/KeyboardAccessProbing.hpp"

#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>

namespace quenby {

/// Watches, while the keyboard tap runs, for the two ways it can be alive and still see nothing:
/// secure keyboard entry held by another application (password fields, terminals), and a stale
/// grant (the system counts key-downs the tap never receives). Checks once a second; each check
/// reads two counters and, only while secure entry is on, who holds it. Main thread only; the
/// probe, the counter and the scheduler must outlive it.
class KeyboardAccessMonitor {
public:
  static constexpr std::chrono::seconds kCheckInterval{1};
  /// The tap looks stale when, over this many checks, the system counted at least
  /// `kStaleKeyDownThreshold` key-downs and the tap none.
  static constexpr std::size_t kStaleWindowChecks = 10;
  static constexpr std::uint64_t kStaleKeyDownThreshold = 20;

  KeyboardAccessMonitor(const KeyboardAccessProbing& probe,
                        std::function<std::uint64_t()> tapKeyDownCount, MainScheduler& scheduler);
  KeyboardAccessMonitor(const KeyboardAccessMonitor&) = delete;
  KeyboardAccessMonitor& operator=(const KeyboardAccessMonitor&) = delete;

  /// Checks now and then every second. Starting a running monitor changes nothing.
  void start();
  /// Stops checking and forgets the condition: with no tap there is nothing to explain.
  void stop();
  [[nodiscard]] bool isRunning() const { return !checks_.isCancelled(); }

  [[nodiscard]] const KeyboardAccessCondition& condition() const { return condition_; }
  /// `handler` is called after each change of the condition, until the token ends.
  [[nodiscard]] ObservationToken observe(std::function<void()> handler) {
    return observers_.add(std::move(handler));
  }

  /// One check; the timer's work, callable directly.
  void check();

private:
  struct Sample {
    std::uint64_t system;
    std::uint64_t tap;
  };

  void publish(KeyboardAccessCondition condition);
  void forgetSamples() { sampleCount_ = 0; }

  const KeyboardAccessProbing& probe_;
  std::function<std::uint64_t()> tapKeyDownCount_;
  MainScheduler& scheduler_;
  KeyboardAccessCondition condition_;
  /// The last `kStaleWindowChecks + 1` samples in a ring, the newest at `newest_`; forgotten
  /// while secure entry is on, since the tap is then deaf by design.
  std::array<Sample, kStaleWindowChecks + 1> samples_{};
  std::size_t sampleCount_ = 0;
  std::size_t newest_ = 0;
  std::int32_t namedProcess_ = KeyboardAccessProbing::kNoSecureInput;
  std::string namedProcessName_;
  ObserverList<> observers_;
  ObservationToken checks_;
};

} // namespace quenby
