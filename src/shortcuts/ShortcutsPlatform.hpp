#pragma once

#include "shortcuts/catalog/ApplicationSpotlightQuerying.hpp"
#include "shortcuts/catalog/ApplicationWorkspaceNotificationObserving.hpp"
#include "shortcuts/catalog/InstalledApplicationLocating.hpp"
#include "shortcuts/dock/DockPreferenceReading.hpp"

#include <memory>

namespace quenby {

/// What the shortcuts need from the platform: the Dock's preferences and the ways of finding
/// installed applications and hearing that they changed.
struct ShortcutsPlatform {
  std::shared_ptr<DockPreferenceReading> dockPreferenceReader;
  std::shared_ptr<InstalledApplicationLocating> applicationLocator;
  std::shared_ptr<ApplicationSpotlightQuerying> spotlightQuery;
  std::shared_ptr<ApplicationWorkspaceNotificationObserving> workspaceNotifications;

  /// An empty Dock, no applications and no notifications.
  [[nodiscard]] static ShortcutsPlatform inert() {
    return {
        .dockPreferenceReader = std::make_shared<InertDockPreferenceReader>(),
        .applicationLocator = std::make_shared<InertInstalledApplicationLocator>(),
        .spotlightQuery = std::make_shared<InertApplicationSpotlightQuery>(),
        .workspaceNotifications = std::make_shared<InertApplicationWorkspaceNotificationObserver>(),
    };
  }
};

} // namespace quenby
