#pragma once

#include "ui/animation/ShortcutAnimationMotionProviding.hpp"
#include "ui/animation/ShortcutAnimationPanelCreating.hpp"
#include "ui/animation/ShortcutAnimationScreenProviding.hpp"
#include "ui/editor/MappingEditorPresenting.hpp"
#include "ui/settings/SettingsWindowPresenting.hpp"

#include <memory>

namespace quenby {

/// What the windows and the shortcut animation need from the platform.
struct UIPlatform {
  std::shared_ptr<SettingsWindowPresenting> settingsWindow;
  std::shared_ptr<MappingEditorPresenting> mappingEditor;
  std::shared_ptr<ShortcutAnimationPanelCreating> shortcutAnimationPanels;
  std::shared_ptr<ShortcutAnimationScreenProviding> shortcutAnimationScreens;
  std::shared_ptr<ShortcutAnimationMotionProviding> shortcutAnimationMotion;

  /// Windows that never open and an animation that never shows.
  [[nodiscard]] static UIPlatform inert() {
    return {.settingsWindow = std::make_shared<InertSettingsWindowPresenter>(),
            .mappingEditor = std::make_shared<InertMappingEditorPresenter>(),
            .shortcutAnimationPanels = std::make_shared<InertShortcutAnimationPanelFactory>(),
            .shortcutAnimationScreens = std::make_shared<InertShortcutAnimationScreenProvider>(),
            .shortcutAnimationMotion = std::make_shared<InertShortcutAnimationMotionProvider>()};
  }
};

} // namespace quenby
