#pragma once

#include "app/ApplicationActivationPolicy.hpp"
#include "app/ConfigurationFailurePanelMaking.hpp"
#include "base/DistributedNotificationObserving.hpp"
#include "base/FileSystem.hpp"
#include "base/KeyValueStore.hpp"
#include "base/Localizer.hpp"
#include "base/Logger.hpp"
#include "base/MainScheduler.hpp"
#include "base/MonotonicClock.hpp"
#include "base/PropertyListDecoding.hpp"
#include "data/WindowPlacementSnapshotProviding.hpp"
#include "shortcuts/catalog/ApplicationSpotlightQuerying.hpp"
#include "shortcuts/catalog/ApplicationWorkspaceNotificationObserving.hpp"
#include "shortcuts/catalog/InstalledApplicationLocating.hpp"
#include "shortcuts/dock/DockPreferenceReading.hpp"

#include <memory>

namespace quenby {

/// Every adapter through which the core reaches the platform. macOS fills it with the system
/// adapters; the simulation with simulated ones; `inert()` with harmless ones. The runtime graph
/// is built from this bundle alone, so the same graph runs on both platforms.
struct PlatformServices {
  std::shared_ptr<KeyValueStore> userDefaults;
  std::shared_ptr<MainScheduler> scheduler;
  std::shared_ptr<MonotonicClock> clock;
  std::shared_ptr<Localizer> localizer;
  std::shared_ptr<Logger> logger;
  std::shared_ptr<FileSystem> fileSystem;
  std::shared_ptr<PropertyListDecoding> propertyListDecoder;
  std::shared_ptr<ApplicationActivationPolicy> activationPolicy;
  std::shared_ptr<WindowPlacementSnapshotProviding> windowPlacementSnapshotProvider;
  std::shared_ptr<DistributedNotificationObserving> distributedNotificationCenter;
  std::shared_ptr<DockPreferenceReading> dockPreferenceReader;
  std::shared_ptr<InstalledApplicationLocating> applicationLocator;
  std::shared_ptr<ApplicationSpotlightQuerying> spotlightQuery;
  std::shared_ptr<ApplicationWorkspaceNotificationObserving> workspaceNotifications;
  std::shared_ptr<ConfigurationFailurePanelMaking> failurePanelFactory;

  /// Harmless adapters throughout: in-memory defaults, a virtual-time scheduler, English, no
  /// log, the real file system, no property-list decoding, an empty Dock, no applications, no
  /// notifications, panels that never show.
  [[nodiscard]] static PlatformServices inert();
};

} // namespace quenby
