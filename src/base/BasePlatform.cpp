#include "base/BasePlatform.hpp"

#include "base/InMemoryKeyValueStore.hpp"
#include "base/ManualScheduler.hpp"
#include "base/PosixFileSystem.hpp"

namespace quenby {

BasePlatform BasePlatform::inert() {
  auto scheduler = std::make_shared<ManualScheduler>();
  return {
      .userDefaults = std::make_shared<InMemoryKeyValueStore>(),
      .scheduler = scheduler,
      .clock = scheduler,
      .wallClock = std::make_shared<FollowingWallClock>(scheduler, kInertStart),
      .localizer = std::make_shared<EnglishLocalizer>(),
      .logger = std::make_shared<NullLogger>(),
      .fileSystem = std::make_shared<PosixFileSystem>(),
      .propertyListDecoder = std::make_shared<InertPropertyListDecoder>(),
      .distributedNotificationCenter = std::make_shared<InertDistributedNotificationCenter>(),
  };
}

} // namespace quenby
