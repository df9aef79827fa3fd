#pragma once

#include "app/AppShellAssembly.hpp"
#include "app/menu/HUDEnableExplaining.hpp"
#include "base/BasePlatform.hpp"
#include "data/DataAssembly.hpp"
#include "hud/HUDAssembly.hpp"
#include "shortcuts/ShortcutsAssembly.hpp"
#include "ui/UIPlatform.hpp"
#include "ui/editor/InstalledApplicationCatalog.hpp"
#include "ui/editor/MappingEditorViewModel.hpp"
#include "ui/installer/ApplicationInstaller.hpp"
#include "ui/settings/GeneralSettingsViewModel.hpp"
#include "ui/settings/usage/UsageSettingsViewModel.hpp"

#include <memory>

namespace quenby {

/// The windows' feature objects: the view models of the Settings pages and of the mapping editor,
/// and the windows built over them. Built after the features they show, which must outlive it.
class UIAssembly {
public:
  /// `enableExplainer` asks before the HUD is turned on from Settings, as the menu does.
  UIAssembly(const BasePlatform& base, const UIPlatform& platform, AppShellAssembly& shell,
             HUDEnableExplaining& enableExplainer, DataAssembly& data, ShortcutsAssembly& shortcuts,
             HUDAssembly& hud);
  UIAssembly(const UIAssembly&) = delete;
  UIAssembly& operator=(const UIAssembly&) = delete;

  void showSettings() { settingsWindow_->show(); }
  void closeSettings() { settingsWindow_->close(); }
  /// `letter` is upper case, 'A'–'Z'.
  void openMappingEditor(char letter) {
    mappingEditorModel_.open(letter);
    mappingEditor_->open(letter);
  }
  void closeMappingEditor() { mappingEditor_->close(); }

  [[nodiscard]] GeneralSettingsViewModel& generalSettings() { return generalSettings_; }
  [[nodiscard]] UsageSettingsViewModel& usageSettings() { return usageSettings_; }
  [[nodiscard]] MappingEditorViewModel& mappingEditor() { return mappingEditorModel_; }
  /// Created with the graph, with no start step: the launch asks it once, after the coordinator
  /// has started.
  [[nodiscard]] ApplicationInstaller& applicationInstaller() { return applicationInstaller_; }

private:
  // The editor's own reader: what it learns about bundles the user points at is no concern of
  // the resolver's.
  BundleApplicationMetadataReader editorMetadataReader_;
  InstalledApplicationCatalog installedApplications_;
  GeneralSettingsViewModel generalSettings_;
  UsageSettingsViewModel usageSettings_;
  MappingEditorViewModel mappingEditorModel_;
  // After the view models they show.
  std::unique_ptr<SettingsWindowPresenting> settingsWindow_;
  std::unique_ptr<MappingEditorPresenting> mappingEditor_;
  ApplicationInstaller applicationInstaller_;
};

} // namespace quenby
