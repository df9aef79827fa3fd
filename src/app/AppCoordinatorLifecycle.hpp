#pragma once

#include "shortcuts/mapping/KeyboardMappingSnapshot.hpp"

#include <functional>

namespace quenby {

/// The coordinator's table of start and stop operations, in the order they are declared. The
/// runtime graph fills them with closures over its feature objects; an operation whose feature
/// does not exist yet stays a no-op.
struct AppCoordinatorLifecycle {
  using Step = std::function<void()>;

  Step setAccessoryActivationPolicy = [] {};
  Step startDock = [] {};
  std::function<KeyboardMappingSnapshot()> initialSnapshot = [] {
    return KeyboardMappingSnapshot{};
  };
  std::function<void(const KeyboardMappingSnapshot&)> preloadIcons = [](const auto&) {};
  Step prewarmShortcutAnimation = [] {};
  Step startCatalogMonitoring = [] {};
  Step startRunningApplications = [] {};
  Step startOptionDigits = [] {};
  Step restoreHUD = [] {};
  Step synchronizeMenu = [] {};
  Step showSettings = [] {};
  Step hideHUD = [] {};
  Step closeMappingEditor = [] {};
  Step closeSettings = [] {};
  Step stopEventTap = [] {};
  Step stopOptionDigits = [] {};
  Step stopShortcutAnimation = [] {};
  Step stopSwitchCommands = [] {};
  Step stopRunningApplications = [] {};
  Step stopCatalogMonitoring = [] {};
  Step stopMappings = [] {};
  Step stopDock = [] {};
  Step stopMenu = [] {};
};

} // namespace quenby
