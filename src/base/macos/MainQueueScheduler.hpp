#pragma once

#include "base/MainScheduler.hpp"

namespace quenby {

/// The main thread's run loop: posted work goes on the main dispatch queue, delayed and repeating
/// work on timers in the common run-loop modes (so menu tracking does not hold them up). Call
/// from the main thread; holds no state, each piece of work lives as long as its token. A
/// repeating task may run up to a tenth of its interval late, never early, and never drifts.
class MainQueueScheduler final : public MainScheduler {
public:
  [[nodiscard]] ObservationToken post(Task task) override;
  [[nodiscard]] ObservationToken scheduleAfter(Duration delay, Task task) override;
  [[nodiscard]] ObservationToken scheduleRepeating(Duration interval, Task task) override;
};

} // namespace quenby
