// Builds the shortcuts' system adapters. Main thread only; each adapter is shared with the
// runtime graph and lives as long as it does. The Spotlight query starts only when the catalog
// monitor starts it; the workspace is asked for its front application at each hide, never
// cached. Icons load on a private serial queue and arrive on the main queue.

#include "shortcuts/macos/LiveShortcutsPlatform.hpp"

#include "shortcuts/catalog/macos/SystemApplicationSpotlightQuery.hpp"
#include "shortcuts/catalog/macos/SystemApplicationWorkspaceNotificationObserver.hpp"
#include "shortcuts/catalog/macos/WorkspaceApplicationLocator.hpp"
#include "shortcuts/dock/SystemDockPreferenceReader.hpp"
#include "shortcuts/dock/macos/SystemDockPreferences.hpp"
#include "shortcuts/hotkeys/macos/CarbonOptionDigitHotKeyBackend.hpp"
#include "shortcuts/hotkeys/macos/SystemSymbolicHotKeyReader.hpp"
#include "shortcuts/running/macos/LiveRunningApplicationAdapters.hpp"
#include "shortcuts/switching/macos/FileManagerApplicationPresenceChecker.hpp"
#include "shortcuts/switching/macos/RunningApplicationHideTarget.hpp"
#include "shortcuts/switching/macos/WorkspaceApplicationOpener.hpp"
#include "shortcuts/switching/macos/WorkspaceFrontmostApplicationProvider.hpp"

#include <utility>

namespace quenby {

ShortcutsPlatform makeLiveShortcutsPlatform(const BasePlatform& base) {
  SystemDockPreferences dock = makeSystemDockPreferences();
  return {
      .dockPreferenceReader = std::make_shared<SystemDockPreferenceReader>(
          std::move(dock.synchronize), std::move(dock.copyPersistentApps)),
      .applicationLocator = std::make_shared<WorkspaceApplicationLocator>(),
      .spotlightQuery = std::make_shared<SystemApplicationSpotlightQuery>(),
      .workspaceNotifications = std::make_shared<SystemApplicationWorkspaceNotificationObserver>(),
      .applicationOpener = std::make_shared<WorkspaceApplicationOpener>(),
      .applicationPresenceChecker = std::make_shared<FileManagerApplicationPresenceChecker>(),
      .frontmostApplication = std::make_shared<WorkspaceFrontmostApplicationProvider>(),
      .frontmostHidableApplication = [] { return RunningApplicationHideTarget::frontmost(); },
      .hotKeyBackend = std::make_shared<CarbonOptionDigitHotKeyBackend>(),
      .symbolicHotKeys = std::make_shared<SystemSymbolicHotKeyReader>(),
      .runningApplications = makeWorkspaceRunningApplications(),
      .iconLoader = makeWorkspaceApplicationIconLoader(base.fileSystem, base.propertyListDecoder),
      .iconWorkScheduler = makeTaskApplicationIconWorkScheduler(),
  };
}

} // namespace quenby
