#include "app/AppRuntime.hpp"

#include <utility>

namespace quenby {

AppRuntime::AppRuntime(PlatformServices platform, AppRuntimeConfiguration configuration)
    : platform_(std::move(platform)), shell_(platform_.base, platform_.app),
      data_(platform_.base, platform_.data, shell_.configurationReporter()),
      shortcuts_(platform_.base, platform_.shortcuts, platform_.ui, shell_.configurationReporter(),
                 data_.usage(), data_.preferences(),
                 {.dockStartsCatalogMonitor = !configuration.isHUDPerformanceMeasurement}),
      hud_(platform_.base, platform_.hud, platform_.data, data_, shortcuts_),
      ui_(platform_.base, platform_.ui, shell_, *platform_.app.hudEnableExplainer, data_,
          shortcuts_, hud_),
      menuBar_(platform_.base, platform_.app, shell_, data_, shortcuts_, hud_,
               [this] { ui_.showSettings(); }),
      lifecycle_(makeLifecycle()) {
  hud_.controller().setSettingsOpener([this] { ui_.showSettings(); });
  hud_.controller().setLetterEditorOpener([this](char letter) { ui_.openMappingEditor(letter); });
}

// Which feature each of the coordinator's steps reaches; the coordinator alone decides their
// order (AppCoordinator::start and stop). A step whose feature does not exist yet stays a no-op.
AppCoordinatorLifecycle AppRuntime::makeLifecycle() {
  AppCoordinatorLifecycle lifecycle;
  lifecycle.setAccessoryActivationPolicy = [this] { shell_.becomeAccessory(); };
  lifecycle.startDock = [this] { shortcuts_.startDock(); };
  lifecycle.initialSnapshot = [this] { return shortcuts_.mappingSnapshot(); };
  lifecycle.preloadIcons = [this](const KeyboardMappingSnapshot& snapshot) {
    shortcuts_.preloadIcons(snapshot);
  };
  lifecycle.prewarmShortcutAnimation = [this] { shortcuts_.shortcutAnimation().prewarm(); };
  lifecycle.startCatalogMonitoring = [this] { shortcuts_.startCatalogMonitoring(); };
  lifecycle.startRunningApplications = [this] { shortcuts_.startRunningApplications(); };
  lifecycle.startOptionDigits = [this] { shortcuts_.startOptionDigits(); };
  lifecycle.restoreHUD = [this] { hud_.restoreHUD(); };
  lifecycle.synchronizeMenu = [this] { menuBar_.synchronizeMenu(); };
  lifecycle.showSettings = [this] { ui_.showSettings(); };
  lifecycle.hideHUD = [this] { hud_.hideHUD(); };
  lifecycle.closeMappingEditor = [this] { ui_.closeMappingEditor(); };
  lifecycle.closeSettings = [this] { ui_.closeSettings(); };
  lifecycle.stopEventTap = [this] { hud_.stopEventTap(); };
  lifecycle.stopOptionDigits = [this] { shortcuts_.stopOptionDigits(); };
  lifecycle.stopShortcutAnimation = [this] { shortcuts_.shortcutAnimation().stop(); };
  lifecycle.stopSwitchCommands = [this] { shortcuts_.stopSwitchCommands(); };
  lifecycle.stopRunningApplications = [this] { shortcuts_.stopRunningApplications(); };
  lifecycle.stopCatalogMonitoring = [this] { shortcuts_.stopCatalogMonitoring(); };
  lifecycle.stopMappings = [this] { shortcuts_.stopMappings(); };
  lifecycle.stopDock = [this] { shortcuts_.stopDock(); };
  lifecycle.stopMenu = [this] { menuBar_.stopMenu(); };
  return lifecycle;
}

} // namespace quenby
