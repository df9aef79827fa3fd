#include "simulation/SimulatedPlatform.hpp"

#include "shortcuts/dock/SystemDockPreferenceReader.hpp"
#include "simulation/RecordingKeyValueStore.hpp"
#include "simulation/SimulatedFailurePanelFactory.hpp"
#include "simulation/SimulatedLogger.hpp"
#include "simulation/SimulatedWindowPlacementSnapshotProvider.hpp"

namespace quenby {

PlatformServices makeSimulatedPlatformServices(SimulatedWorld& world,
                                               const ScenarioEventRecorder& recorder) {
  SimulatedDock& dock = world.dock();
  return {
      .userDefaults = std::make_shared<RecordingKeyValueStore>(world.defaults(), recorder),
      .scheduler = world.scheduler(),
      .clock = world.scheduler(),
      .localizer = std::make_shared<EnglishLocalizer>(),
      .logger = std::make_shared<SimulatedLogger>(recorder),
      .fileSystem = world.fileSystem(),
      .propertyListDecoder = world.decoder(),
      .activationPolicy = std::make_shared<InertApplicationActivationPolicy>(),
      .windowPlacementSnapshotProvider =
          std::make_shared<SimulatedWindowPlacementSnapshotProvider>(world),
      .distributedNotificationCenter = world.notificationCenter(),
      .dockPreferenceReader = std::make_shared<SystemDockPreferenceReader>(
          [&dock] { return dock.synchronize(); }, [&dock] { return dock.copyPersistentApps(); }),
      .applicationLocator = world.launchServices(),
      // Spotlight and the workspace stay silent: Launch Services' notifications and the poll
      // are what the simulated Mac offers the catalog.
      .spotlightQuery = std::make_shared<InertApplicationSpotlightQuery>(),
      .workspaceNotifications = std::make_shared<InertApplicationWorkspaceNotificationObserver>(),
      .failurePanelFactory = std::make_shared<SimulatedFailurePanelFactory>(recorder),
  };
}

} // namespace quenby
