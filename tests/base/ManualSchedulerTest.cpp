#include "base/ManualScheduler.hpp"

#include "base/LifetimeGuard.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <vector>

namespace quenby {
namespace {

using namespace std::chrono_literals;
using ::testing::ElementsAre;

TEST(ManualSchedulerTest, RunsWorkInDueOrderAtItsOwnVirtualTime) {
  ManualScheduler scheduler;
  std::vector<std::string> log;
  const auto at = [&](const char* name) {
    return [&, name] {
      log.push_back(
          std::string(name) + "@" +
          std::to_string(
              std::chrono::duration_cast<std::chrono::milliseconds>(scheduler.now()).count()));
    };
  };
  auto late = scheduler.scheduleAfter(300ms, at("late"));
  auto early = scheduler.scheduleAfter(100ms, at("early"));
  auto tick = scheduler.scheduleRepeating(250ms, at("tick"));
  auto now = scheduler.post(at("posted"));
  scheduler.runPending();
  EXPECT_THAT(log, ElementsAre("posted@0"));
  scheduler.advanceBy(600ms);
  EXPECT_THAT(log, ElementsAre("posted@0", "early@100", "tick@250", "late@300", "tick@500"));
  EXPECT_EQ(scheduler.now(), 600ms);
  EXPECT_EQ(scheduler.pendingCount(), 1U); // only the repeating tick is left
}

TEST(ManualSchedulerTest, CancellationFromAnywhereStopsWork) {
  ManualScheduler scheduler;
  int ticks = 0;
  int posted = 0;
  std::optional<ObservationToken> tick;
  tick = scheduler.scheduleRepeating(10ms, [&] {
    if (++ticks == 3) {
      tick->cancel(); // a repeating task may end itself
    }
  });
  {
    auto dropped = scheduler.scheduleAfter(5ms, [&] { ++posted; });
  } // dropping the token cancels
  auto cancelled = scheduler.post([&] { ++posted; });
  cancelled.cancel();
  cancelled.cancel();
  scheduler.advanceBy(100ms);
  EXPECT_EQ(ticks, 3);
  EXPECT_EQ(posted, 0);
  EXPECT_EQ(scheduler.pendingCount(), 0U);

  // A token outliving its scheduler cancels harmlessly.
  auto orphan = std::make_unique<ManualScheduler>()->post([] {});
  orphan.cancel();
}

TEST(ManualSchedulerTest, WorkScheduledForNowFromRunningWorkRunsInTheSamePass) {
  ManualScheduler scheduler;
  std::vector<int> order;
  ObservationToken inner;
  auto outer = scheduler.post([&] {
    order.push_back(1);
    inner = scheduler.post([&] { order.push_back(2); });
  });
  scheduler.runPending();
  EXPECT_THAT(order, ElementsAre(1, 2));
}

TEST(LifetimeGuardTest, WeakCallbacksDoNothingOnceTheOwnerIsGone) {
  ManualScheduler scheduler;
  int calls = 0;
  std::function<void(int)> callback;
  {
    LifetimeGuard guard;
    callback = guard.weak([&calls](int increment) { calls += increment; });
    callback(2);
  }
  callback(5);
  EXPECT_EQ(calls, 2);
}

} // namespace
} // namespace quenby
