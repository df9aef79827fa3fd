#include "app/menu/MenuBarAssembly.hpp"

#include <utility>

namespace quenby {

MenuBarAssembly::MenuBarAssembly(const BasePlatform& base, const AppShellPlatform& platform,
                                 AppShellAssembly& shell, DataAssembly& data,
                                 ShortcutsAssembly& shortcuts, HUDAssembly& hud,
                                 std::function<void()> showSettings)
    : controller_(
          {.feature = hud.feature(),
           .keyboardAccess = hud.keyboardAccess(),
           .optionDigits = shortcuts.optionDigits(),
           .preferences = data.preferences(),
           .diagnostics = shell.shortcutDiagnostics(),
           .presentationPublisher = store_,
           .enableExplainer = *platform.hudEnableExplainer,
           .permission = hud.permission(),
           .showSettings = std::move(showSettings),
           .terminateApplication = [&terminator = *platform.terminator] { terminator.terminate(); },
           .localizer = *base.localizer}) {}

} // namespace quenby
