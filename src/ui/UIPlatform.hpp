#pragma once

#include "ui/editor/MappingEditorPresenting.hpp"
#include "ui/settings/SettingsWindowPresenting.hpp"

#include <memory>

namespace quenby {

/// What the windows and the shortcut animation need from the platform.
struct UIPlatform {
  std::shared_ptr<SettingsWindowPresenting> settingsWindow;
  std::shared_ptr<MappingEditorPresenting> mappingEditor;

  /// Windows that never open.
  [[nodiscard]] static UIPlatform inert() {
    return {.settingsWindow = std::make_shared<InertSettingsWindowPresenter>(),
            .mappingEditor = std::make_shared<InertMappingEditorPresenter>()};
  }
};

} // namespace quenby
