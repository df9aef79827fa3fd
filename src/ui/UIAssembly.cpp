#include "ui/UIAssembly.hpp"

namespace quenby {

UIAssembly::UIAssembly(const BasePlatform& base, const UIPlatform& platform,
                       AppShellAssembly& shell, HUDEnableExplaining& enableExplainer,
                       DataAssembly& data, ShortcutsAssembly& shortcuts, HUDAssembly& hud)
    : editorMetadataReader_(*base.fileSystem, *base.propertyListDecoder),
      installedApplications_(*base.fileSystem, editorMetadataReader_, platform.applicationFolders),
      generalSettings_({.preferences = data.preferences(),
                        .hud = hud.feature(),
                        .keyboardAccess = hud.keyboardAccess(),
                        .permission = hud.permission(),
                        .enableExplainer = enableExplainer,
                        .optionDigits = shortcuts.optionDigits(),
                        .mappings = shortcuts.letterStore(),
                        .diagnostics = shell.shortcutDiagnostics(),
                        .launchAtLogin = *platform.launchAtLogin,
                        .testMonitor = shortcuts.testMonitor(),
                        .scheduler = *base.scheduler,
                        .localizer = *base.localizer}),
      usageSettings_(data.usage(), *base.localizer),
      mappingEditorModel_(shortcuts.letterStore(), editorMetadataReader_, installedApplications_,
                          *platform.mappingEditorFilePanels, *base.fileSystem, *base.localizer),
      settingsWindow_(platform.settingsWindows->makeSettingsWindow(
          {.general = generalSettings_, .usage = usageSettings_})),
      mappingEditor_(platform.mappingEditorWindows->makeMappingEditorWindow(mappingEditorModel_)),
      applicationInstaller_(platform.installer, *base.userDefaults, *base.localizer, *base.logger) {
}

} // namespace quenby
