#pragma once

#include "shortcuts/running/ApplicationIconWorkScheduling.hpp"

#include <memory>

namespace quenby {

/// Runs icon loads on a private serial dispatch queue and brings each result back on the main
/// queue. Call `schedule` on the main thread. Work already queued when the scheduler is
/// destroyed still runs and delivers: the queue lives until its last block has finished.
class TaskApplicationIconWorkScheduler final : public ApplicationIconWorkScheduling {
public:
  TaskApplicationIconWorkScheduler();
  TaskApplicationIconWorkScheduler(const TaskApplicationIconWorkScheduler&) = delete;
  TaskApplicationIconWorkScheduler& operator=(const TaskApplicationIconWorkScheduler&) = delete;
  ~TaskApplicationIconWorkScheduler() override;

  void schedule(Work work, Completion completion) override;

private:
  struct Queue;
  std::unique_ptr<Queue> queue_;
};

} // namespace quenby
