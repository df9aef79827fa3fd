#pragma once

#include "base/MonotonicClock.hpp"
#include "base/ObservationToken.hpp"

#include <functional>

namespace quenby {

/// Runs work on the main thread. Every feature lives on that one thread, so nothing scheduled
/// here needs a lock; the returned tokens cancel the work when dropped.
class MainScheduler {
public:
  using Task = std::function<void()>;

  virtual ~MainScheduler() = default;

  /// Runs `task` after the current event has been handled (the main queue's "later").
  [[nodiscard]] virtual ObservationToken post(Task task) = 0;
  /// Runs `task` once, `delay` from now.
  [[nodiscard]] virtual ObservationToken scheduleAfter(Duration delay, Task task) = 0;
  /// Runs `task` every `interval`, first `interval` from now, until the token is dropped.
  /// Timers fire in every run-loop mode, so a menu being tracked does not stop them.
  [[nodiscard]] virtual ObservationToken scheduleRepeating(Duration interval, Task task) = 0;
};

} // namespace quenby
