#pragma once

#include "base/DistributedNotificationObserving.hpp"
#include "base/FileSystem.hpp"
#include "base/KeyValueStore.hpp"
#include "base/Localizer.hpp"
#include "base/Logger.hpp"
#include "base/MainScheduler.hpp"
#include "base/MonotonicClock.hpp"
#include "base/PropertyListDecoding.hpp"
#include "base/WallClock.hpp"

#include <memory>

namespace quenby {

/// The platform facilities every subsystem builds on. macOS fills it with system adapters, the
/// simulation with simulated ones.
struct BasePlatform {
  std::shared_ptr<KeyValueStore> userDefaults;
  std::shared_ptr<MainScheduler> scheduler;
  std::shared_ptr<MonotonicClock> clock;
  std::shared_ptr<WallClock> wallClock;
  std::shared_ptr<Localizer> localizer;
  std::shared_ptr<Logger> logger;
  std::shared_ptr<FileSystem> fileSystem;
  std::shared_ptr<PropertyListDecoding> propertyListDecoder;
  std::shared_ptr<DistributedNotificationObserving> distributedNotificationCenter;

  /// In-memory defaults, a virtual-time scheduler that also serves as the clock, calendar time
  /// from `kInertStart` on, English, no log, the real file system, no property-list decoding and
  /// no notifications.
  [[nodiscard]] static BasePlatform inert();

  /// Where inert and simulated calendar time begins: Saturday 7 March 2026, 09:00 UTC.
  static constexpr WallTime kInertStart{
      std::chrono::sys_days{std::chrono::year{2026} / std::chrono::March / 7} +
      std::chrono::hours{9}};
};

} // namespace quenby
