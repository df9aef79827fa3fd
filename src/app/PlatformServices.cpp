#include "app/PlatformServices.hpp"

#include "base/InMemoryKeyValueStore.hpp"
#include "base/ManualScheduler.hpp"
#include "base/PosixFileSystem.hpp"

namespace quenby {

PlatformServices PlatformServices::inert() {
  auto scheduler = std::make_shared<ManualScheduler>();
  return {
      .userDefaults = std::make_shared<InMemoryKeyValueStore>(),
      .scheduler = scheduler,
      .clock = scheduler,
      .localizer = std::make_shared<EnglishLocalizer>(),
      .logger = std::make_shared<NullLogger>(),
      .fileSystem = std::make_shared<PosixFileSystem>(),
      .propertyListDecoder = std::make_shared<InertPropertyListDecoder>(),
      .activationPolicy = std::make_shared<InertApplicationActivationPolicy>(),
      .windowPlacementSnapshotProvider = std::make_shared<InertWindowPlacementSnapshotProvider>(),
      .distributedNotificationCenter = std::make_shared<InertDistributedNotificationCenter>(),
      .dockPreferenceReader = std::make_shared<InertDockPreferenceReader>(),
      .applicationLocator = std::make_shared<InertInstalledApplicationLocator>(),
      .spotlightQuery = std::make_shared<InertApplicationSpotlightQuery>(),
      .workspaceNotifications = std::make_shared<InertApplicationWorkspaceNotificationObserver>(),
      .failurePanelFactory = std::make_shared<InertConfigurationFailurePanelFactory>(),
  };
}

} // namespace quenby
