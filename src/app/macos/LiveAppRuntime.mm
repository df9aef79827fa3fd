// Gathers each subsystem's system adapters into the bundle the portable runtime graph is built
// from. Main thread only. The adapters are shared with the graph and live as long as it does.

#include "app/macos/LiveAppRuntime.hpp"

#include "app/macos/AccessoryActivationPolicy.hpp"
#include "app/macos/AlertHUDEnableExplainer.hpp"
#include "app/macos/SystemApplicationTerminator.hpp"
#include "app/macos/SystemConfigurationFailurePanelFactory.hpp"
#include "base/macos/LiveBasePlatform.hpp"
#include "data/macos/SystemWindowPlacementSnapshotProvider.hpp"
#include "data/usage/macos/SystemUsageCalendar.hpp"
#include "hud/macos/LiveHUDPlatform.hpp"
#include "shortcuts/macos/LiveShortcutsPlatform.hpp"
#include "ui/animation/macos/SystemShortcutAnimationMotionProvider.hpp"
#include "ui/animation/macos/SystemShortcutAnimationPanelFactory.hpp"
#include "ui/animation/macos/SystemShortcutAnimationScreenProvider.hpp"
#include "ui/editor/InstalledApplicationCatalog.hpp"
#include "ui/editor/macos/SystemMappingEditorFilePanels.hpp"
#include "ui/editor/macos/SystemMappingEditorWindowFactory.hpp"
#include "ui/installer/macos/AlertApplicationInstallerPrompter.hpp"
#include "ui/installer/macos/SystemApplicationFileOperations.hpp"
#include "ui/installer/macos/SystemApplicationSignatureVerifier.hpp"
#include "ui/installer/macos/WorkspaceApplicationRelauncher.hpp"
#include "ui/login/macos/SystemLaunchAtLoginService.hpp"
#include "ui/settings/macos/SystemSettingsWindowFactory.hpp"

#import <Foundation/Foundation.h>
#include <memory>
#include <utility>

namespace quenby {

PlatformServices makeLivePlatformServices() {
  BasePlatform base = makeLiveBasePlatform();
  ShortcutsPlatform shortcuts = makeLiveShortcutsPlatform(base);
  return {
      .base = std::move(base),
      .app = {.activationPolicy = std::make_shared<AccessoryActivationPolicy>(),
              .failurePanelFactory = std::make_shared<SystemConfigurationFailurePanelFactory>(),
              .hudEnableExplainer = std::make_shared<AlertHUDEnableExplainer>(),
              .terminator = std::make_shared<SystemApplicationTerminator>()},
      .shortcuts = std::move(shortcuts),
      .data = {.windowPlacementSnapshotProvider =
                   std::make_shared<SystemWindowPlacementSnapshotProvider>(),
               .calendar = std::make_shared<SystemUsageCalendar>()},
      .hud = makeLiveHUDPlatform(),
      .ui = {.settingsWindows = std::make_shared<SystemSettingsWindowFactory>(),
             .mappingEditorWindows = std::make_shared<SystemMappingEditorWindowFactory>(),
             .mappingEditorFilePanels = std::make_shared<SystemMappingEditorFilePanels>(),
             .applicationFolders = InstalledApplicationCatalog::standardFolders(
                 FileURL(), FileURL::fromPath(NSHomeDirectory().UTF8String)),
             .launchAtLogin = std::make_shared<SystemLaunchAtLoginService>(),
             .shortcutAnimationPanels = std::make_shared<SystemShortcutAnimationPanelFactory>(),
             .shortcutAnimationScreens = std::make_shared<SystemShortcutAnimationScreenProvider>(),
             .shortcutAnimationMotion = std::make_shared<SystemShortcutAnimationMotionProvider>(),
             .installer = {.files = std::make_shared<SystemApplicationFileOperations>(),
                           .signatureVerifier =
                               std::make_shared<SystemApplicationSignatureVerifier>(),
                           .relauncher = std::make_shared<WorkspaceApplicationRelauncher>(),
                           .alerts = std::make_shared<AlertApplicationInstallerPrompter>()}},
  };
}

} // namespace quenby
