// Builds the bundle of system adapters that the portable runtime graph is made from. Main thread
// only. The adapters are shared with the graph and live as long as it does.

#include "app/macos/LiveAppRuntime.hpp"

#include "app/macos/AccessoryActivationPolicy.hpp"
#include "app/macos/SystemConfigurationFailurePanelFactory.hpp"
#include "base/PosixFileSystem.hpp"
#include "base/macos/BundleLocalizer.hpp"
#include "base/macos/CoreFoundationPropertyListDecoder.hpp"
#include "base/macos/DistributedNotificationCenter.hpp"
#include "base/macos/MainQueueScheduler.hpp"
#include "base/macos/OSLogLogger.hpp"
#include "base/macos/UserDefaultsKeyValueStore.hpp"
#include "data/macos/SystemWindowPlacementSnapshotProvider.hpp"
#include "shortcuts/catalog/macos/SystemApplicationSpotlightQuery.hpp"
#include "shortcuts/catalog/macos/SystemApplicationWorkspaceNotificationObserver.hpp"
#include "shortcuts/catalog/macos/WorkspaceApplicationLocator.hpp"
#include "shortcuts/dock/SystemDockPreferenceReader.hpp"
#include "shortcuts/dock/macos/SystemDockPreferences.hpp"

#include <memory>
#include <utility>

namespace quenby {

// Every field below is filled; a field added to the bundle must be filled here too, and this
// stops the syntax check until it is.
static_assert(sizeof(PlatformServices) == 15 * sizeof(std::shared_ptr<void>),
              "PlatformServices changed: fill the new adapter below");

PlatformServices makeLivePlatformServices() {
  SystemDockPreferences dock = makeSystemDockPreferences();
  return {
      .userDefaults = std::make_shared<UserDefaultsKeyValueStore>(),
      .scheduler = std::make_shared<MainQueueScheduler>(),
      .clock = std::make_shared<SteadyMonotonicClock>(),
      .localizer = std::make_shared<BundleLocalizer>(),
      .logger = std::make_shared<OSLogLogger>(),
      .fileSystem = std::make_shared<PosixFileSystem>(),
      .propertyListDecoder = std::make_shared<CoreFoundationPropertyListDecoder>(),
      .activationPolicy = std::make_shared<AccessoryActivationPolicy>(),
      .windowPlacementSnapshotProvider = std::make_shared<SystemWindowPlacementSnapshotProvider>(),
      .distributedNotificationCenter = std::make_shared<DistributedNotificationCenter>(),
      .dockPreferenceReader = std::make_shared<SystemDockPreferenceReader>(
          std::move(dock.synchronize), std::move(dock.copyPersistentApps)),
      .applicationLocator = std::make_shared<WorkspaceApplicationLocator>(),
      .spotlightQuery = std::make_shared<SystemApplicationSpotlightQuery>(),
      .workspaceNotifications = std::make_shared<SystemApplicationWorkspaceNotificationObserver>(),
      .failurePanelFactory = std::make_shared<SystemConfigurationFailurePanelFactory>(),
  };
}

} // namespace quenby
