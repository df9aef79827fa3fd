// Main-thread scheduling over GCD's main queue and common-mode NSTimers.
//
// Threading: call from the main thread only; every task runs on it.
//
// Lifetime: the token owns the task; the queued block or the timer holds it weakly, so work
// whose token is gone (cancelled) finds nothing to run. Dropping a timer's token also
// invalidates the timer, which releases its block at once.
//
// Guarantee: a task never runs before its time. A repeating task may run up to a tenth of its
// interval late.
//
// App Nap: a windowless accessory application is a candidate for App Nap, which can stretch the
// 0.5 s polls (Dock, catalog) to several seconds. We take no activity assertion: it would keep
// the process out of App Nap for the whole session, all day on battery, for polls that are only
// a backstop. The Dock's and Launch Services' distributed notifications are registered to be
// delivered immediately and wake the process on every real change; the digit press re-reads
// the Dock before it acts, which costs one preferences synchronisation and one comparison when
// nothing changed, so a late poll never sends a press to a stale application. What we do give
// the system is a tolerance of a tenth of the interval on repeating timers, so it can coalesce
// our wake-ups with others'; one-shot delays keep none, they time what the user sees.

#include "base/macos/MainQueueScheduler.hpp"

#import <Foundation/Foundation.h>
#include <chrono>
#include <dispatch/dispatch.h>
#include <memory>
#include <utility>

namespace quenby {

namespace {

using SharedTask = std::shared_ptr<MainScheduler::Task>;

// The share of a repeating timer's interval by which it may fire late.
constexpr double kRepeatingTolerance = 0.1;

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
  if (repeats) {
    timer.tolerance = seconds(interval) * kRepeatingTolerance;
  }
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
