// Main-thread scheduling over GCD's main queue and common-mode NSTimers. Call from the main
// thread only. The token owns the task; the queued block or the timer holds it weakly, so work
// whose token is gone (cancelled) finds nothing to run. Dropping a timer's token also invalidates
// the timer, which releases its block at once.

#include "base/macos/MainQueueScheduler.hpp"

#import <Foundation/Foundation.h>
#include <chrono>
#include <dispatch/dispatch.h>
#include <memory>
#include <utility>

namespace quenby {

namespace {

using SharedTask = std::shared_ptr<MainScheduler::Task>;

NSTimeInterval seconds(Duration duration) {
  return std::chrono::duration<double>(duration).count();
}

ObservationToken scheduleTimer(Duration interval, bool repeats, MainScheduler::Task task) {
  auto owned = std::make_shared<MainScheduler::Task>(std::move(task));
  std::weak_ptr<MainScheduler::Task> weakTask = owned;
  NSTimer* timer = [NSTimer timerWithTimeInterval:seconds(interval)
                                          repeats:repeats ? YES : NO
                                            block:^(NSTimer*) {
                                              // Kept alive by this local even if the task drops
                                              // its own token while it runs.
                                              if (SharedTask alive = weakTask.lock()) {
                                                (*alive)();
                                              }
                                            }];
  [NSRunLoop.mainRunLoop addTimer:timer forMode:NSRunLoopCommonModes];
  return ObservationToken([timer, owned]() mutable {
    [timer invalidate];
    owned.reset();
  });
}

} // namespace

ObservationToken MainQueueScheduler::post(Task task) {
  auto owned = std::make_shared<Task>(std::move(task));
  std::weak_ptr<Task> weakTask = owned;
  dispatch_async(dispatch_get_main_queue(), ^{
    if (SharedTask alive = weakTask.lock()) {
      (*alive)();
    }
  });
  return ObservationToken([owned]() mutable { owned.reset(); });
}

ObservationToken MainQueueScheduler::scheduleAfter(Duration delay, Task task) {
  return scheduleTimer(delay, false, std::move(task));
}

ObservationToken MainQueueScheduler::scheduleRepeating(Duration interval, Task task) {
  return scheduleTimer(interval, true, std::move(task));
}

} // namespace quenby
