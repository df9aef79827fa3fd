// Builds the bundle of system adapters that the portable runtime graph is made from. Main thread
// only. The adapters are shared with the graph and live as long as it does.

#include "app/macos/LiveAppRuntime.hpp"

#include "app/macos/AccessoryActivationPolicy.hpp"
#include "base/PosixFileSystem.hpp"
#include "base/macos/BundleLocalizer.hpp"
#include "base/macos/CoreFoundationPropertyListDecoder.hpp"
#include "base/macos/MainQueueScheduler.hpp"
#include "base/macos/OSLogLogger.hpp"
#include "base/macos/UserDefaultsKeyValueStore.hpp"
#include "data/macos/SystemWindowPlacementSnapshotProvider.hpp"

#include <memory>

namespace quenby {

PlatformServices makeLivePlatformServices() {
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
  };
}

} // namespace quenby
