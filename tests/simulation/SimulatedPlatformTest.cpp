#include "simulation/SimulatedPlatform.hpp"

#include "app/AppCoordinatorFactory.hpp"
#include "simulation/JsonLinesEventWriter.hpp"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace quenby {
namespace {

struct CollectingSink final : ScenarioEventSink {
  std::vector<std::string> lines;
  void emit(const ScenarioEvent& event) override {
    lines.push_back(JsonLinesEventWriter::format(event));
  }
};

TEST(SimulatedPlatformTest, AFailureReachesThePanelOnceAfterItsMarkerIsSaved) {
  SimulatedWorld world;
  CollectingSink sink;
  const ScenarioEventRecorder recorder(sink, *world.scheduler());
  const ConfigurationFailure failure{"switch.configuration.dock.7.empty-position",
                                     "Dock Shortcut Is Read-Only", "Dock position 7 is empty."};
  for (int process = 0; process < 2; ++process) {
    std::weak_ptr<AppRuntime> runtime;
    auto coordinator =
        makeAppCoordinator(makeSimulatedPlatformServices(world, recorder), {}, &runtime);
    coordinator->start();
    sink.lines.clear();
    runtime.lock()->shell().configurationReporter().report(failure);
    runtime.lock()->shell().configurationReporter().report(failure);
    if (process == 0) {
      ASSERT_EQ(sink.lines.size(), 2U);
      EXPECT_EQ(sink.lines[0], R"({"t":0,"event":"write","key":"configurationFailure.reported.)"
                               R"(switch.configuration.dock.7.empty-position","value":true})");
      EXPECT_EQ(sink.lines[1],
                R"({"t":0,"event":"failure","id":"switch.configuration.dock.7.empty-position",)"
                R"("title":"Dock Shortcut Is Read-Only","message":"Dock position 7 is empty."})");
    } else {
      EXPECT_TRUE(sink.lines.empty()) << "a relaunch must not show the same failure again";
    }
    coordinator->stop();
  }
}

} // namespace
} // namespace quenby
