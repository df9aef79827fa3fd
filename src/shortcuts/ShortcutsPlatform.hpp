#pragma once

#include "shortcuts/catalog/ApplicationSpotlightQuerying.hpp"
#include "shortcuts/catalog/ApplicationWorkspaceNotificationObserving.hpp"
#include "shortcuts/catalog/InstalledApplicationLocating.hpp"
#include "shortcuts/dock/DockPreferenceReading.hpp"
#include "shortcuts/hotkeys/OptionDigitHotKeyBackend.hpp"
#include "shortcuts/hotkeys/SystemSymbolicHotKeyReading.hpp"
#include "shortcuts/running/ApplicationIconLoading.hpp"
#include "shortcuts/running/ApplicationIconWorkScheduling.hpp"
#include "shortcuts/running/RunningApplicationListing.hpp"
#include "shortcuts/switching/ApplicationOpening.hpp"
#include "shortcuts/switching/ApplicationPresenceChecking.hpp"
#include "shortcuts/switching/FrontmostApplicationProviding.hpp"
#include "shortcuts/switching/HidableApplication.hpp"

#include <memory>

namespace quenby {

/// What the shortcuts need from the platform: the Dock's preferences, the ways of finding
/// installed applications and hearing that they changed, and the workspace's opening, hiding and
/// front application, the running applications and the icons. The adapters from switching on
/// default to their inert twins, so a platform that does not fill them still builds a harmless
/// graph.
struct ShortcutsPlatform {
  std::shared_ptr<DockPreferenceReading> dockPreferenceReader;
  std::shared_ptr<InstalledApplicationLocating> applicationLocator;
  std::shared_ptr<ApplicationSpotlightQuerying> spotlightQuery;
  std::shared_ptr<ApplicationWorkspaceNotificationObserving> workspaceNotifications;
  std::shared_ptr<ApplicationOpening> applicationOpener =
      std::make_shared<InertApplicationOpener>();
  std::shared_ptr<ApplicationPresenceChecking> applicationPresenceChecker =
      std::make_shared<InertApplicationPresenceChecker>();
  std::shared_ptr<FrontmostApplicationProviding> frontmostApplication =
      std::make_shared<InertFrontmostApplicationProvider>();
  FrontmostHidableApplicationSource frontmostHidableApplication = [] {
    return std::unique_ptr<HidableApplication>();
  };
  std::shared_ptr<OptionDigitHotKeyBackend> hotKeyBackend =
      std::make_shared<InertOptionDigitHotKeyBackend>();
  std::shared_ptr<SystemSymbolicHotKeyReading> symbolicHotKeys =
      std::make_shared<InertSystemSymbolicHotKeyReader>();
  std::shared_ptr<RunningApplicationListing> runningApplications =
      std::make_shared<InertRunningApplicationLister>();
  std::shared_ptr<const ApplicationIconLoading> iconLoader =
      std::make_shared<InertApplicationIconLoader>();
  std::shared_ptr<ApplicationIconWorkScheduling> iconWorkScheduler =
      std::make_shared<InertApplicationIconWorkScheduler>();

  /// An empty Dock, no applications, no notifications, nothing in front; opening succeeds
  /// without opening anything.
  [[nodiscard]] static ShortcutsPlatform inert() {
    return {
        .dockPreferenceReader = std::make_shared<InertDockPreferenceReader>(),
        .applicationLocator = std::make_shared<InertInstalledApplicationLocator>(),
        .spotlightQuery = std::make_shared<InertApplicationSpotlightQuery>(),
        .workspaceNotifications = std::make_shared<InertApplicationWorkspaceNotificationObserver>(),
        .applicationOpener = std::make_shared<InertApplicationOpener>(),
        .applicationPresenceChecker = std::make_shared<InertApplicationPresenceChecker>(),
        .frontmostApplication = std::make_shared<InertFrontmostApplicationProvider>(),
        .frontmostHidableApplication = [] { return std::unique_ptr<HidableApplication>(); },
    };
  }
};

} // namespace quenby
