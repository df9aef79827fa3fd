#include "shortcuts/catalog/WorkspaceApplicationCatalogMonitor.hpp"

#include "base/ManualScheduler.hpp"
#include "base/PosixFileSystem.hpp"
#include "base/libplist/LibplistPropertyListDecoder.hpp"
#include "shortcuts/catalog/BundleApplicationMetadataReader.hpp"
#include "shortcuts/catalog/DirectoryScanningApplicationLocator.hpp"
#include "shortcuts/catalog/SystemApplicationCatalogDistributedObserver.hpp"
#include "shortcuts/catalog/WorkspaceApplicationResolver.hpp"
#include "support/ApplicationBundleFixture.hpp"
#include "support/ScriptedDistributedNotificationCenter.hpp"

#include <gtest/gtest.h>
#include <memory>

namespace quenby {
namespace {

class ScriptedSpotlightQuery final : public ApplicationSpotlightQuerying {
public:
  void start(ResultsHandler handler) override { handler_ = std::move(handler); }
  void stop() override {
    handler_ = nullptr;
    ++stops;
  }
  void deliver(const ApplicationCandidateMap& results) {
    if (handler_) {
      handler_(results);
    }
  }
  [[nodiscard]] bool isRunning() const { return handler_ != nullptr; }
  int stops = 0;

private:
  ResultsHandler handler_;
};

class ScriptedWorkspaceCenter final : public ApplicationWorkspaceNotificationObserving {
public:
  [[nodiscard]] ObservationToken observe(std::function<void()> handler) override {
    *handler_ = std::move(handler);
    return ObservationToken([slot = handler_] { *slot = nullptr; });
  }
  void post() {
    if (*handler_) {
      (*handler_)();
    }
  }

private:
  std::shared_ptr<std::function<void()>> handler_ = std::make_shared<std::function<void()>>();
};

class RecordingCatalog final : public ApplicationCatalogRefreshing {
public:
  void refreshCatalog(const CandidateMap* spotlightCandidates) override {
    ++refreshes;
    lastCandidates = spotlightCandidates ? std::optional(*spotlightCandidates) : std::nullopt;
    revision += pendingChanges;
    pendingChanges = 0;
  }
  [[nodiscard]] std::uint64_t catalogRevision() const override { return revision; }

  int refreshes = 0;
  std::optional<CandidateMap> lastCandidates;
  std::uint64_t revision = 7;
  std::uint64_t pendingChanges = 0;
};

class WorkspaceApplicationCatalogMonitorTest : public ::testing::Test {
protected:
  void SetUp() override {
    changeToken = monitor.observe([this] { ++changes; });
  }

  void postEveryLaunchServicesNotification() {
    for (const auto name : SystemApplicationCatalogDistributedObserver::kNotificationNames) {
      center.post(std::string(name));
    }
  }

  RecordingCatalog catalog;
  ScriptedSpotlightQuery query;
  ScriptedWorkspaceCenter workspace;
  ScriptedDistributedNotificationCenter center;
  SystemApplicationCatalogDistributedObserver distributed{center};
  ManualScheduler scheduler;
  WorkspaceApplicationCatalogMonitor monitor{catalog, query, workspace, distributed, scheduler};
  int changes = 0;
  ObservationToken changeToken;
};

TEST_F(WorkspaceApplicationCatalogMonitorTest, EveryTriggerRefreshesAndEachRevisionIsToldOnce) {
  monitor.start();
  monitor.start();
  EXPECT_EQ(catalog.refreshes, 1);
  EXPECT_EQ(changes, 1); // the first revision is news
  EXPECT_TRUE(query.isRunning());
  EXPECT_EQ(center.observerCount(), 3u);

  // A burst with nothing changed says nothing.
  for (int i = 0; i < 5; ++i) {
    postEveryLaunchServicesNotification();
    workspace.post();
  }
  EXPECT_EQ(catalog.refreshes, 21);
  EXPECT_EQ(changes, 1);

  // One change heard through several triggers is told once.
  catalog.pendingChanges = 1;
  postEveryLaunchServicesNotification();
  workspace.post();
  EXPECT_EQ(changes, 2);

  // Spotlight's results are handed over as candidates; other triggers hand over none.
  const ApplicationCandidateMap results{{"com.example.mail", {FileURL::fromPath("/A/Mail.app")}}};
  query.deliver(results);
  EXPECT_EQ(catalog.lastCandidates, results);
  workspace.post();
  EXPECT_FALSE(catalog.lastCandidates.has_value());

  const int beforePolls = catalog.refreshes;
  scheduler.advanceBy(std::chrono::milliseconds(1500));
  EXPECT_EQ(catalog.refreshes, beforePolls + 3);

  monitor.stop();
  EXPECT_EQ(query.stops, 1);
  EXPECT_EQ(center.observerCount(), 0u);
  EXPECT_EQ(scheduler.pendingCount(), 0u);
  const int afterStop = catalog.refreshes;
  workspace.post();
  query.deliver(results);
  scheduler.advanceBy(std::chrono::seconds(2));
  EXPECT_EQ(catalog.refreshes, afterStop);
  monitor.stop();
  EXPECT_EQ(query.stops, 1);

  // A restart with the same revision has nothing new to tell.
  monitor.start();
  EXPECT_EQ(changes, 2);
}

TEST_F(WorkspaceApplicationCatalogMonitorTest, AStopFromTheChangeHandlerLeavesNoPollBehind) {
  // The first revision is told during start(), before the poll would be armed.
  changeToken = monitor.observe([this] {
    ++changes;
    monitor.stop();
  });
  monitor.start();
  EXPECT_EQ(changes, 1);
  EXPECT_FALSE(monitor.isRunning());
  EXPECT_EQ(scheduler.pendingCount(), 0u);

  // Deliveries that were already on their way when it stopped arm nothing either.
  catalog.pendingChanges = 1;
  query.deliver({});
  workspace.post();
  postEveryLaunchServicesNotification();
  scheduler.advanceBy(WorkspaceApplicationCatalogMonitor::kPollInterval * 4);
  EXPECT_EQ(catalog.refreshes, 1);
  EXPECT_EQ(scheduler.pendingCount(), 0u);
}

TEST_F(WorkspaceApplicationCatalogMonitorTest, EveryObserverHearsEveryRevisionWhileItsTokenLives) {
  std::vector<std::string> heard;
  ObservationToken second;
  ObservationToken late;
  ObservationToken first = monitor.observe([&] {
    heard.emplace_back("first");
    // Ending a later registration mid-delivery must not call it, nor skip anyone else.
    second.cancel();
    late = monitor.observe([&] { heard.emplace_back("late"); });
  });
  second = monitor.observe([&] { heard.emplace_back("second"); });
  ObservationToken third = monitor.observe([&] { heard.emplace_back("third"); });

  monitor.start();
  EXPECT_EQ(changes, 1);
  // One registered during the delivery hears from the next revision on.
  EXPECT_EQ(heard, (std::vector<std::string>{"first", "third"}));

  heard.clear();
  first.cancel();
  { const ObservationToken dropped = std::move(third); }
  catalog.pendingChanges = 1;
  workspace.post();
  EXPECT_EQ(changes, 2);
  EXPECT_EQ(heard, (std::vector<std::string>{"late"}));
}

TEST(WorkspaceApplicationCatalogMonitorOnDiskTest, AMovedApplicationIsToldOnceAtTheNextPoll) {
  ApplicationBundleFixture bundles;
  PosixFileSystem fileSystem;
  LibplistPropertyListDecoder decoder;
  BundleApplicationMetadataReader reader(fileSystem, decoder);
  const FileURL original =
      bundles.createBundle("Applications/Mail.app", "com.example.mail", "Mail");
  DirectoryScanningApplicationLocator locator(fileSystem, reader, bundles.root());
  WorkspaceApplicationResolver resolver(locator, reader, fileSystem);
  InertApplicationSpotlightQuery query;
  InertApplicationWorkspaceNotificationObserver workspace;
  ScriptedDistributedNotificationCenter center;
  SystemApplicationCatalogDistributedObserver distributed(center);
  ManualScheduler scheduler;
  WorkspaceApplicationCatalogMonitor monitor(resolver, query, workspace, distributed, scheduler);
  std::vector<ApplicationResolution> told;
  const ObservationToken token =
      monitor.observe([&] { told.push_back(resolver.resolve("com.example.mail", original)); });

  (void)resolver.resolve("com.example.mail", original);
  monitor.start();
  ASSERT_EQ(told.size(), 1u);
  EXPECT_EQ(told.back(), ApplicationResolution::resolved(original));

  for (int i = 0; i < 10; ++i) {
    center.post("com.apple.LaunchServices.databaseChanged");
  }
  EXPECT_EQ(told.size(), 1u);

  bundles.move("Applications/Mail.app", "Archive/Mail.app");
  locator.rescan();
  scheduler.advanceBy(WorkspaceApplicationCatalogMonitor::kPollInterval * 4);
  ASSERT_EQ(told.size(), 2u);
  EXPECT_EQ(told.back(), ApplicationResolution::resolved(bundles.url("Archive/Mail.app")));
}

} // namespace
} // namespace quenby
