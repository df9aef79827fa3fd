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
#include "ui/settings/macos/SystemSettingsWindowFactory.hpp"

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
      // The editor comes with its own change; until then it opens nothing.
      .ui = {.settingsWindows = std::make_shared<SystemSettingsWindowFactory>(),
             .mappingEditorWindows = std::make_shared<InertMappingEditorWindowFactory>(),
             .launchAtLogin = std::make_shared<InertLaunchAtLoginService>(),
             .shortcutAnimationPanels = std::make_shared<SystemShortcutAnimationPanelFactory>(),
             .shortcutAnimationScreens = std::make_shared<SystemShortcutAnimationScreenProvider>(),
             .shortcutAnimationMotion = std::make_shared<SystemShortcutAnimationMotionProvider>()},
  };
}

} // namespace quenby
