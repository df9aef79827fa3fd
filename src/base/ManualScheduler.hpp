#pragma once

#include "base/MainScheduler.hpp"
#include "base/MonotonicClock.hpp"

#include <cstdint>
#include <map>
#include <memory>

namespace quenby {

/// A scheduler and clock on virtual time, for tests and the simulation. Nothing runs until the
/// owner calls `runPending` or `advanceBy`; work then runs in due-time order, ties in the order it
/// was scheduled, with `now()` equal to the work's due time.
class ManualScheduler final : public MainScheduler, public MonotonicClock {
public:
  ManualScheduler();
  ManualScheduler(const ManualScheduler&) = delete;
  ManualScheduler& operator=(const ManualScheduler&) = delete;
  ~ManualScheduler() override;

  [[nodiscard]] ObservationToken post(Task task) override;
  [[nodiscard]] ObservationToken scheduleAfter(Duration delay, Task task) override;
  [[nodiscard]] ObservationToken scheduleRepeating(Duration interval, Task task) override;
  [[nodiscard]] Duration now() const override;

  /// Runs everything due at the current time, including work that it schedules for now.
  void runPending();
  /// Moves time forward by `delta`, running every piece of work that falls due on the way.
  void advanceBy(Duration delta);
  /// Number of scheduled, uncancelled pieces of work.
  [[nodiscard]] std::size_t pendingCount() const;

private:
  struct State;
  ObservationToken schedule(Duration due, Duration interval, Task task);
  bool runNextDueBy(Duration limit);

  std::shared_ptr<State> state_;
};

} // namespace quenby
