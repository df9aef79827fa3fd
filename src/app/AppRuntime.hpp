#pragma once

#include "app/AppCoordinatorLifecycle.hpp"
#include "app/AppRuntimeConfiguration.hpp"
#include "app/AppShellAssembly.hpp"
#include "app/PlatformServices.hpp"
#include "app/menu/MenuBarAssembly.hpp"
#include "data/DataAssembly.hpp"
#include "data/usage/UsageAnalyticsRecording.hpp"
#include "hud/HUDAssembly.hpp"
#include "shortcuts/ShortcutsAssembly.hpp"
#include "ui/UIAssembly.hpp"

namespace quenby {

/// The composition root: each subsystem's feature objects, built once from its own platform
/// adapters, and the lifecycle that says in which order the coordinator starts and stops them.
/// Everything lives exactly as long as this object; members are declared in creation order, so
/// teardown runs in reverse.
class AppRuntime {
public:
  AppRuntime(PlatformServices platform, AppRuntimeConfiguration configuration);
  AppRuntime(const AppRuntime&) = delete;
  AppRuntime& operator=(const AppRuntime&) = delete;

  [[nodiscard]] const AppCoordinatorLifecycle& lifecycle() const { return lifecycle_; }
  [[nodiscard]] const PlatformServices& platform() const { return platform_; }
  [[nodiscard]] AppShellAssembly& shell() { return shell_; }
  [[nodiscard]] ShortcutsAssembly& shortcuts() { return shortcuts_; }
  [[nodiscard]] DataAssembly& data() { return data_; }
  [[nodiscard]] HUDAssembly& hud() { return hud_; }
  [[nodiscard]] UIAssembly& ui() { return ui_; }
  [[nodiscard]] MenuBarAssembly& menuBar() { return menuBar_; }

private:
  AppCoordinatorLifecycle makeLifecycle();

  PlatformServices platform_;
  AppShellAssembly shell_;
  // Before the shortcuts: switching counts into the usage analytics and reads the preferences.
  DataAssembly data_;
  ShortcutsAssembly shortcuts_;
  // After the shortcuts: the HUD shows their mappings and switches through them.
  HUDAssembly hud_;
  // After the features its windows show and change.
  UIAssembly ui_;
  // Last: the menu reports on every feature above.
  MenuBarAssembly menuBar_;
  AppCoordinatorLifecycle lifecycle_;
};

} // namespace quenby
