#include "app/AppShellAssembly.hpp"

namespace quenby {

AppShellAssembly::AppShellAssembly(const BasePlatform& base, const AppShellPlatform& platform)
    : platform_(platform), presenter_(*platform.failurePanelFactory),
      reporter_(*base.userDefaults, &presenter_),
      shortcutDiagnosticsHealth_(&shortcutDiagnostics_) {}

AppShellAssembly::~AppShellAssembly() {
  // Nothing may reach the presenter or the diagnostics while the shell comes down.
  reporter_.setPresenter(nullptr);
  shortcutDiagnosticsHealth_.setDiagnostics(nullptr);
}

} // namespace quenby
