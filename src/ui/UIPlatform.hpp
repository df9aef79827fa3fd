#pragma once

#include "ui/animation/ShortcutAnimationMotionProviding.hpp"
#include "ui/animation/ShortcutAnimationPanelCreating.hpp"
#include "ui/animation/ShortcutAnimationScreenProviding.hpp"
#include "ui/editor/MappingEditorFilePanels.hpp"
#include "ui/editor/MappingEditorWindowMaking.hpp"
#include "ui/installer/ApplicationInstallerPlatform.hpp"
#include "ui/login/LaunchAtLoginServicing.hpp"
#include "ui/settings/SettingsWindowMaking.hpp"

#include <memory>
#include <vector>

namespace quenby {

/// What the windows and the shortcut animation need from the platform.
struct UIPlatform {
  std::shared_ptr<SettingsWindowMaking> settingsWindows;
  std::shared_ptr<MappingEditorWindowMaking> mappingEditorWindows;
  std::shared_ptr<MappingEditorFilePanels> mappingEditorFilePanels;
  /// Where the application picker looks for installed applications.
  std::vector<FileURL> applicationFolders;
  std::shared_ptr<LaunchAtLoginServicing> launchAtLogin;
  std::shared_ptr<ShortcutAnimationPanelCreating> shortcutAnimationPanels;
  std::shared_ptr<ShortcutAnimationScreenProviding> shortcutAnimationScreens;
  std::shared_ptr<ShortcutAnimationMotionProviding> shortcutAnimationMotion;
  /// Inert unless the platform fills it: only the application itself ever moves its bundle.
  ApplicationInstallerPlatform installer = ApplicationInstallerPlatform::inert();

  /// Windows that never open, dialogs that are cancelled, no installed applications, no login
  /// item, an animation that never shows and an installer that never asks.
  [[nodiscard]] static UIPlatform inert() {
    return {.settingsWindows = std::make_shared<InertSettingsWindowFactory>(),
            .mappingEditorWindows = std::make_shared<InertMappingEditorWindowFactory>(),
            .mappingEditorFilePanels = std::make_shared<InertMappingEditorFilePanels>(),
            .applicationFolders = {},
            .launchAtLogin = std::make_shared<InertLaunchAtLoginService>(),
            .shortcutAnimationPanels = std::make_shared<InertShortcutAnimationPanelFactory>(),
            .shortcutAnimationScreens = std::make_shared<InertShortcutAnimationScreenProvider>(),
            .shortcutAnimationMotion = std::make_shared<InertShortcutAnimationMotionProvider>()};
  }
};

} // namespace quenby
