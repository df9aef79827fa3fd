#include "ui/UIAssembly.hpp"

namespace quenby {

UIAssembly::UIAssembly(const BasePlatform& base, const UIPlatform& platform,
                       AppShellAssembly& shell, HUDEnableExplaining& enableExplainer,
                       DataAssembly& data, ShortcutsAssembly& shortcuts, HUDAssembly& hud)
    : generalSettings_({.preferences = data.preferences(),
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
      settingsWindow_(platform.settingsWindows->makeSettingsWindow(
          {.general = generalSettings_, .usage = usageSettings_})),
      mappingEditor_(platform.mappingEditorWindows->makeMappingEditorWindow(mappingEditorModel_)) {}

} // namespace quenby
