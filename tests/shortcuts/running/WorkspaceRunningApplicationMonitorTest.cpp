#include "shortcuts/running/WorkspaceRunningApplicationMonitor.hpp"

#include "base/ManualScheduler.hpp"

#include <gtest/gtest.h>
#include <memory>

namespace quenby {
namespace {

class ScriptedWorkspace final : public RunningApplicationListing {
public:
  [[nodiscard]] std::vector<RunningApplicationProcessSnapshot>
  runningApplications() const override {
    ++listings;
    return processes;
  }
  [[nodiscard]] ObservationToken
  observeLaunchesAndTerminations(std::function<void()> handler) override {
    *handler_ = std::move(handler);
    return ObservationToken([slot = handler_] { *slot = nullptr; });
  }
  void announce() const {
    if (*handler_) {
      (*handler_)();
    }
  }

  std::vector<RunningApplicationProcessSnapshot> processes;
  mutable int listings = 0;

private:
  std::shared_ptr<std::function<void()>> handler_ = std::make_shared<std::function<void()>>();
};

using Names = std::set<std::string>;

struct MonitorFixture : ::testing::Test {
  ManualScheduler scheduler;
  ScriptedWorkspace workspace;
  WorkspaceRunningApplicationMonitor monitor{workspace, scheduler};
  int changes = 0;
  ObservationToken observation = monitor.observe([this] { ++changes; });
};

TEST_F(MonitorFixture, KeepsLiveIdentifiedProcessesAndTellsOnlyOfChanges) {
  workspace.processes = {{"com.apple.mail"}, {std::nullopt}, {""}, {"com.apple.Notes", true}};
  monitor.start();
  monitor.start();
  EXPECT_EQ(monitor.runningBundleIdentifiers(), Names{"com.apple.mail"});
  EXPECT_EQ(changes, 1);

  // A burst of announcements costs one listing, in the next turn.
  workspace.processes.push_back({"com.apple.Safari"});
  workspace.announce();
  workspace.announce();
  EXPECT_EQ(changes, 1);
  scheduler.runPending();
  EXPECT_EQ(monitor.runningBundleIdentifiers(), (Names{"com.apple.mail", "com.apple.Safari"}));
  EXPECT_EQ(workspace.listings, 2);
  EXPECT_EQ(changes, 2);

  // Launched and quit before the announcement is handled: nothing changed.
  workspace.processes.push_back({"com.apple.Maps", true});
  workspace.announce();
  scheduler.runPending();
  EXPECT_EQ(changes, 2);
}

TEST_F(MonitorFixture, AfterStopNeitherAnnouncementsNorARecomputePostedBeforeItRun) {
  monitor.start();
  workspace.processes = {{"com.apple.mail"}};
  workspace.announce();
  monitor.stop();
  workspace.announce();
  scheduler.runPending();
  EXPECT_EQ(workspace.listings, 1);
  EXPECT_TRUE(monitor.runningBundleIdentifiers().empty());

  // Restarted before the old turn would have come: only the starts list.
  monitor.start();
  workspace.announce();
  monitor.stop();
  monitor.start();
  scheduler.runPending();
  EXPECT_EQ(workspace.listings, 3);
  EXPECT_EQ(monitor.runningBundleIdentifiers(), Names{"com.apple.mail"});
}

} // namespace
} // namespace quenby
