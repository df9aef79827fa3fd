// Builds the base system adapters. Main thread only; each adapter is shared with the runtime
// graph and lives as long as it does. Nothing here touches the system until an adapter is used.

#include "base/macos/LiveBasePlatform.hpp"

#include "base/PosixFileSystem.hpp"
#include "base/macos/BundleLocalizer.hpp"
#include "base/macos/CoreFoundationPropertyListDecoder.hpp"
#include "base/macos/DistributedNotificationCenter.hpp"
#include "base/macos/MainQueueScheduler.hpp"
#include "base/macos/OSLogLogger.hpp"
#include "base/macos/UserDefaultsKeyValueStore.hpp"

namespace quenby {

BasePlatform makeLiveBasePlatform() {
  return {
      .userDefaults = std::make_shared<UserDefaultsKeyValueStore>(),
      .scheduler = std::make_shared<MainQueueScheduler>(),
      .clock = std::make_shared<SteadyMonotonicClock>(),
      .wallClock = std::make_shared<SystemWallClock>(),
      .localizer = std::make_shared<BundleLocalizer>(),
      .logger = std::make_shared<OSLogLogger>(),
      .fileSystem = std::make_shared<PosixFileSystem>(),
      .propertyListDecoder = std::make_shared<CoreFoundationPropertyListDecoder>(),
      .distributedNotificationCenter = std::make_shared<DistributedNotificationCenter>(),
  };
}

} // namespace quenby
