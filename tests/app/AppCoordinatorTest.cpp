#include "app/AppCoordinator.hpp"

#include "app/AppCoordinatorFactory.hpp"
#include "app/AppLaunchController.hpp"
#include "base/InMemoryKeyValueStore.hpp"
#include "base/ManualScheduler.hpp"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace quenby {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// A lifecycle whose every step records its name.
AppCoordinatorLifecycle recordingLifecycle(std::vector<std::string>& calls) {
  AppCoordinatorLifecycle lifecycle;
  const auto record = [&calls](const char* name) {
    return [&calls, name] { calls.push_back(name); };
  };
  lifecycle.setAccessoryActivationPolicy = record("setAccessoryActivationPolicy");
  lifecycle.startDock = record("startDock");
  lifecycle.initialSnapshot = [&calls] {
    calls.push_back("initialSnapshot");
    KeyboardMappingSnapshot snapshot;
    snapshot.revision = 42;
    return snapshot;
  };
  lifecycle.preloadIcons = [&calls](const KeyboardMappingSnapshot& snapshot) {
    calls.push_back("preloadIcons:" + std::to_string(snapshot.revision));
  };
  lifecycle.prewarmShortcutAnimation = record("prewarmShortcutAnimation");
  lifecycle.startCatalogMonitoring = record("startCatalogMonitoring");
  lifecycle.startOptionDigits = record("startOptionDigits");
  lifecycle.startRunningApplications = record("startRunningApplications");
  lifecycle.restoreHUD = record("restoreHUD");
  lifecycle.synchronizeMenu = record("synchronizeMenu");
  lifecycle.showSettings = record("showSettings");
  lifecycle.hideHUD = record("hideHUD");
  lifecycle.closeMappingEditor = record("closeMappingEditor");
  lifecycle.closeSettings = record("closeSettings");
  lifecycle.stopEventTap = record("stopEventTap");
  lifecycle.stopOptionDigits = record("stopOptionDigits");
  lifecycle.stopShortcutAnimation = record("stopShortcutAnimation");
  lifecycle.stopSwitchCommands = record("stopSwitchCommands");
  lifecycle.stopRunningApplications = record("stopRunningApplications");
  lifecycle.stopCatalogMonitoring = record("stopCatalogMonitoring");
  lifecycle.stopMappings = record("stopMappings");
  lifecycle.stopDock = record("stopDock");
  lifecycle.stopMenu = record("stopMenu");
  return lifecycle;
}

/// Stands for the runtime graph: records when it is freed.
struct Graph {
  explicit Graph(std::vector<std::string>& log) : calls(log) {}
  Graph(const Graph&) = delete;
  Graph& operator=(const Graph&) = delete;
  ~Graph() { calls.push_back("graph freed"); }
  std::vector<std::string>& calls;
};

TEST(AppCoordinatorTest, StartsAndStopsEveryFeatureInItsFixedOrderThenFreesTheGraph) {
  std::vector<std::string> calls;
  AppCoordinator coordinator({}, recordingLifecycle(calls), std::make_shared<Graph>(calls));
  EXPECT_EQ(coordinator.state(), AppCoordinator::State::initialized);

  coordinator.start();
  EXPECT_THAT(calls, ElementsAre("setAccessoryActivationPolicy", "startDock", "initialSnapshot",
                                 "preloadIcons:42", "prewarmShortcutAnimation",
                                 "startCatalogMonitoring", "startRunningApplications",
                                 "startOptionDigits", "restoreHUD", "synchronizeMenu"));
  calls.clear();
  coordinator.showSettings();
  EXPECT_THAT(calls, ElementsAre("showSettings"));
  calls.clear();

  coordinator.stop();
  EXPECT_THAT(calls, ElementsAre("hideHUD", "closeMappingEditor", "closeSettings", "stopEventTap",
                                 "stopOptionDigits", "stopShortcutAnimation", "stopSwitchCommands",
                                 "stopRunningApplications", "stopCatalogMonitoring", "stopMappings",
                                 "stopDock", "stopMenu", "graph freed"));
  EXPECT_EQ(coordinator.state(), AppCoordinator::State::stopped);
}

TEST(AppCoordinatorTest, IgnoresEveryTransitionOutsideInitializedRunningStopped) {
  std::vector<std::string> calls;
  AppCoordinator coordinator({}, recordingLifecycle(calls), nullptr);
  coordinator.showSettings(); // before start
  coordinator.stop();         // stop while initialized
  EXPECT_THAT(calls, IsEmpty());
  EXPECT_EQ(coordinator.state(), AppCoordinator::State::initialized);

  coordinator.start();
  calls.clear();
  coordinator.start(); // start while running
  EXPECT_THAT(calls, IsEmpty());

  coordinator.stop();
  calls.clear();
  coordinator.stop();
  coordinator.start(); // a stopped coordinator never restarts
  coordinator.showSettings();
  EXPECT_THAT(calls, IsEmpty());
  EXPECT_EQ(coordinator.state(), AppCoordinator::State::stopped);
}

TEST(AppCoordinatorTest, PerformanceMeasurementSkipsOnlyTheCatalogMonitor) {
  std::vector<std::string> measured;
  std::vector<std::string> normal;
  AppCoordinator measuring({.isHUDPerformanceMeasurement = true}, recordingLifecycle(measured),
                           nullptr);
  AppCoordinator plain({}, recordingLifecycle(normal), nullptr);
  for (auto* coordinator : {&measuring, &plain}) {
    coordinator->start();
    coordinator->stop();
  }
  std::erase(normal, "startCatalogMonitoring");
  std::erase(normal, "stopCatalogMonitoring");
  EXPECT_EQ(measured, normal);
}

TEST(AppRuntimeConfigurationTest, ReadsTheEnvironmentExactly) {
  const auto measuring = [](std::initializer_list<std::pair<const std::string, std::string>> env) {
    return AppRuntimeConfiguration::fromEnvironment(Environment(env)).isHUDPerformanceMeasurement;
  };
  EXPECT_TRUE(measuring({{"QUENBY_RUN_HUD_PERFORMANCE_TESTS", "1"}}));
  for (const char* value : {"0", "yes", "true", "1 ", " 1", "01", ""}) {
    EXPECT_FALSE(measuring({{"QUENBY_RUN_HUD_PERFORMANCE_TESTS", value}})) << value;
  }
  EXPECT_FALSE(measuring({}));

  EXPECT_TRUE(AppLaunchContext::fromEnvironment({}).includesMenuBarExtra);
  EXPECT_TRUE(AppLaunchContext::fromEnvironment({{"HOME", "/Users/x"}}).includesMenuBarExtra);
  EXPECT_FALSE(AppLaunchContext::fromEnvironment({{"XCTestConfigurationFilePath", ""}})
                   .includesMenuBarExtra);
}

struct FakeCoordinator final : AppCoordinating {
  std::vector<std::string>& calls;
  explicit FakeCoordinator(std::vector<std::string>& log) : calls(log) {}
  void start() override { calls.push_back("start"); }
  void stop() override { calls.push_back("stop"); }
  void showSettings() override { calls.push_back("showSettings"); }
  void offerToMoveToApplications() override { calls.push_back("offerToMove"); }
  MenuBarExtraStore* menuBarExtra() override { return &store; }
  MenuBarExtraStore store;
};

struct FakeStatusItem final : StatusItemPresenting {
  std::vector<std::string>& calls;
  explicit FakeStatusItem(std::vector<std::string>& log) : calls(log) {}
  void install() override { calls.push_back("install"); }
  void remove() override { calls.push_back("remove"); }
};

AppLaunchController makeController(std::vector<std::string>& calls, AppLaunchContext context) {
  return AppLaunchController(
      context,
      [&calls] {
        calls.push_back("make coordinator");
        return std::make_unique<FakeCoordinator>(calls);
      },
      [&calls](MenuBarExtraStore&) { return std::make_unique<FakeStatusItem>(calls); });
}

TEST(AppLaunchControllerTest, LaunchesOnceAndTearsDownStatusItemBeforeCoordinator) {
  std::vector<std::string> calls;
  auto controller = makeController(calls, {.includesMenuBarExtra = true});
  controller.showSettings(); // Command-Comma before launch has finished
  controller.applicationDidFinishLaunching();
  controller.applicationDidFinishLaunching(); // a second delivery
  controller.showSettings();
  controller.applicationWillTerminate();
  controller.applicationWillTerminate();
  controller.showSettings();
  EXPECT_THAT(calls, ElementsAre("make coordinator", "start", "install", "offerToMove",
                                 "showSettings", "remove", "stop"));
}

TEST(AppLaunchControllerTest, UnderATestHostStartsTheCoordinatorWithoutAStatusItem) {
  std::vector<std::string> calls;
  auto controller = makeController(calls, {.includesMenuBarExtra = false});
  controller.applicationDidFinishLaunching();
  EXPECT_FALSE(controller.hasStatusItem());
  EXPECT_THAT(calls, ElementsAre("make coordinator", "start"));
}

// Reopening shows Settings while the coordinator runs and then tells the platform it was handled;
// before launch or after termination nothing here can show anything, so the platform's own reopen
// must go ahead.
TEST(AppLaunchControllerTest, ReopenShowsSettingsOnlyWhileRunning) {
  std::vector<std::string> calls;
  auto controller = makeController(calls, {.includesMenuBarExtra = false});
  EXPECT_TRUE(controller.handleReopen());
  controller.applicationDidFinishLaunching();
  EXPECT_FALSE(controller.handleReopen());
  EXPECT_FALSE(controller.handleReopen());
  controller.applicationWillTerminate();
  EXPECT_TRUE(controller.handleReopen());
  EXPECT_THAT(calls,
              ElementsAre("make coordinator", "start", "showSettings", "showSettings", "stop"));
}

TEST(AppRuntimeTest, RealGraphStartsAndStopsOnInertPlatform) {
  auto services = PlatformServices::inert();
  const auto defaults = services.base.userDefaults;
  std::weak_ptr<AppRuntime> runtime;
  auto coordinator = makeAppCoordinator(std::move(services), {}, &runtime);
  ASSERT_FALSE(runtime.expired());
  coordinator->start();
  EXPECT_EQ(defaults->string("settings.hudSize"), "standard"); // built once, migrated
  coordinator->stop();
  EXPECT_TRUE(runtime.expired()); // stop frees the whole graph
}

// While the HUD is measured nothing may start the catalog monitor, the Dock provider included:
// its poll is the one timer missing from an otherwise identical launch.
TEST(AppRuntimeTest, HUDMeasurementArmsNoCatalogPoll) {
  const auto timersAfterStart = [](const Environment& environment) {
    auto services = PlatformServices::inert();
    const auto scheduler = std::make_shared<ManualScheduler>();
    services.base.scheduler = scheduler;
    services.base.clock = scheduler;
    auto coordinator = makeAppCoordinator(std::move(services), environment);
    coordinator->start();
    scheduler->runPending();
    const std::size_t timers = scheduler->pendingCount();
    coordinator->stop();
    EXPECT_EQ(scheduler->pendingCount(), 0U) << "stop leaves nothing scheduled";
    return timers;
  };
  const std::size_t normal = timersAfterStart({});
  const std::size_t measured = timersAfterStart({{"QUENBY_RUN_HUD_PERFORMANCE_TESTS", "1"}});
  EXPECT_EQ(measured + 1, normal);
}

} // namespace
} // namespace quenby
