#include "shortcuts/switching/AppSwitchCommandQueue.hpp"

#include "base/ManualScheduler.hpp"
#include "support/RecordingAppSwitchFailureHandler.hpp"
#include "support/RecordingUsageAnalytics.hpp"
#include "support/ScriptedAppSwitcher.hpp"

#include <gtest/gtest.h>
#include <memory>

namespace quenby {
namespace {

AppMapping dockMapping(int position, std::string bundleIdentifier) {
  const auto url = FileURL::fromPath("/Applications/" + bundleIdentifier + ".app");
  return {.displayName = bundleIdentifier,
          .bundleIdentifier = bundleIdentifier,
          .lastKnownURL = url,
          .resolution = ApplicationResolution::resolved(url),
          .source = MappingSource::dock(position)};
}

const AppSwitchingError kRefused = AppSwitchingError::activationFailed("refused");

struct QueueFixture : ::testing::Test {
  ManualScheduler scheduler;
  ScriptedAppSwitcher switcher;
  RecordingAppSwitchFailureHandler failures;
  RecordingUsageAnalytics usage;
  std::unique_ptr<AppSwitchCommandQueue> queue =
      std::make_unique<AppSwitchCommandQueue>(switcher, failures, usage, scheduler);

  AppMapping mail = dockMapping(1, "Mail");
  AppMapping notes = dockMapping(2, "Notes");
  AppMapping maps = dockMapping(3, "Maps");
};

TEST_F(QueueFixture, SwitchesOneAtATimeInSubmissionOrder) {
  queue->submit(mail);
  queue->submit(notes);
  queue->submit(maps);
  // Uses count when a request is accepted; the switch itself waits for the main thread's turn.
  EXPECT_EQ(usage.lines, (std::vector<std::string>{"use dock:1", "use dock:2", "use dock:3"}));
  EXPECT_TRUE(switcher.requests.empty());

  scheduler.runPending();
  ASSERT_EQ(switcher.requests.size(), 1U);
  EXPECT_EQ(switcher.requests[0].mapping, mail);

  // However long the first open takes, the second does not start before it ends.
  scheduler.advanceBy(std::chrono::seconds(5));
  EXPECT_EQ(switcher.requests.size(), 1U);

  switcher.finish(0);
  EXPECT_EQ(switcher.requests.size(), 1U) << "the next switch starts from a fresh turn";
  scheduler.runPending();
  ASSERT_EQ(switcher.requests.size(), 2U);
  EXPECT_EQ(switcher.requests[1].mapping, notes);

  switcher.finish(1, kRefused);
  scheduler.runPending();
  ASSERT_EQ(switcher.requests.size(), 3U);
  EXPECT_EQ(switcher.requests[2].mapping, maps);
  switcher.finish(2);
  scheduler.runPending();

  EXPECT_EQ(usage.lines,
            (std::vector<std::string>{"use dock:1", "use dock:2", "use dock:3", "success dock:1",
                                      "failure dock:2", "success dock:3"}));
  ASSERT_EQ(failures.failures.size(), 1U);
  EXPECT_EQ(failures.failures[0].first, kRefused);
  EXPECT_EQ(failures.failures[0].second, notes);
  EXPECT_EQ(scheduler.pendingCount(), 0U);
}

TEST_F(QueueFixture, ARequestAfterTheQueueRanDryStartsANewDrain) {
  queue->submit(mail);
  scheduler.runPending();
  switcher.finish(0);
  scheduler.runPending();

  queue->submit(notes);
  scheduler.runPending();
  ASSERT_EQ(switcher.requests.size(), 2U);
  EXPECT_EQ(switcher.requests[1].mapping, notes);
}

TEST_F(QueueFixture, StopDropsPendingWorkAndRefusesNewRequests) {
  queue->submit(mail);
  queue->submit(notes);
  queue->stop();
  queue->submit(maps);
  scheduler.runPending();

  EXPECT_TRUE(switcher.requests.empty());
  EXPECT_EQ(queue->pendingCount(), 0U);
  EXPECT_FALSE(queue->acceptsCommands());
  EXPECT_EQ(usage.lines, (std::vector<std::string>{"use dock:1", "use dock:2"}));

  queue->stop();
  EXPECT_FALSE(queue->acceptsCommands());
}

TEST_F(QueueFixture, ASwitchThatOutlivesStopIsOnlyCounted) {
  queue->submit(mail);
  queue->submit(notes);
  scheduler.runPending();
  ASSERT_EQ(switcher.requests.size(), 1U);

  queue->stop();
  switcher.finish(0, kRefused);
  scheduler.runPending();

  EXPECT_EQ(usage.lines, (std::vector<std::string>{"use dock:1", "use dock:2", "failure dock:1"}));
  EXPECT_TRUE(failures.failures.empty()) << "a stale failure must not reach the user";
  EXPECT_EQ(switcher.requests.size(), 1U) << "nothing more starts";
}

TEST_F(QueueFixture, ACompletionAfterTheQueueIsGoneDoesNothing) {
  queue->submit(mail);
  scheduler.runPending();
  queue.reset();
  switcher.finish(0, kRefused);
  scheduler.runPending();

  EXPECT_EQ(usage.lines, (std::vector<std::string>{"use dock:1"}));
  EXPECT_TRUE(failures.failures.empty());
}

TEST_F(QueueFixture, SwitchesThatFinishAtOnceStillRunInOrder) {
  InertAppSwitcher immediate;
  AppSwitchCommandQueue eager(immediate, failures, usage, scheduler);
  eager.submit(mail);
  eager.submit(notes);
  scheduler.runPending();

  EXPECT_EQ(usage.lines, (std::vector<std::string>{"use dock:1", "use dock:2", "success dock:1",
                                                   "success dock:2"}));
  EXPECT_EQ(scheduler.pendingCount(), 0U);
}

} // namespace
} // namespace quenby
