// Icon loading on a private serial dispatch queue, one load at a time in the order scheduled.
//
// Threading: `schedule` is called on the main thread; the work runs on the private queue, the
// completion on the main queue. The item is handed from one to the other by dispatch_async, so
// the two never touch it at once.
//
// Lifetime: each block keeps the queue and the item alive until it has run, so destroying the
// scheduler abandons nothing half done. The work owns what it reads; the completion holds its
// owner weakly, so a result that arrives after its owner is gone does nothing.

#include "shortcuts/running/macos/TaskApplicationIconWorkScheduler.hpp"

#include <dispatch/dispatch.h>
#include <memory>
#include <optional>
#include <utility>

namespace quenby {

struct TaskApplicationIconWorkScheduler::Queue {
  dispatch_queue_t queue =
      dispatch_queue_create("com.brimfold.Quenby.application-icons", DISPATCH_QUEUE_SERIAL);
};

namespace {

struct Item {
  ApplicationIconWorkScheduling::Work work;
  ApplicationIconWorkScheduling::Completion completion;
  std::optional<PreparedApplicationIcon> icon;
};

} // namespace

TaskApplicationIconWorkScheduler::TaskApplicationIconWorkScheduler()
    : queue_(std::make_unique<Queue>()) {}

TaskApplicationIconWorkScheduler::~TaskApplicationIconWorkScheduler() = default;

void TaskApplicationIconWorkScheduler::schedule(Work work, Completion completion) {
  auto item = std::make_shared<Item>(Item{std::move(work), std::move(completion), std::nullopt});
  dispatch_async(queue_->queue, ^{
    item->icon = item->work();
    // Whatever the work held is let go here, off the main thread.
    item->work = nullptr;
    dispatch_async(dispatch_get_main_queue(), ^{
      item->completion(std::move(item->icon));
    });
  });
}

} // namespace quenby
