#pragma once

#include "app/AppShellPlatform.hpp"
#include "app/OneTimeConfigurationFailureReporter.hpp"
#include "app/ShortcutDiagnostics.hpp"
#include "app/SystemConfigurationFailurePanelPresenter.hpp"
#include "base/BasePlatform.hpp"

namespace quenby {

/// The application shell's feature objects: once-only failure reporting and the shortcut
/// diagnostics the menu reads. `base` and `platform` must outlive it.
class AppShellAssembly {
public:
  AppShellAssembly(const BasePlatform& base, const AppShellPlatform& platform);
  AppShellAssembly(const AppShellAssembly&) = delete;
  AppShellAssembly& operator=(const AppShellAssembly&) = delete;
  ~AppShellAssembly();

  /// The first start step: an accessory has a status item and no Dock icon.
  void becomeAccessory() { platform_.activationPolicy->becomeAccessory(); }

  [[nodiscard]] ConfigurationFailureReporting& configurationReporter() { return reporter_; }
  [[nodiscard]] ShortcutDiagnostics& shortcutDiagnostics() { return shortcutDiagnostics_; }

private:
  const AppShellPlatform& platform_;
  SystemConfigurationFailurePanelPresenter presenter_;
  OneTimeConfigurationFailureReporter reporter_;
  ShortcutDiagnostics shortcutDiagnostics_;
};

} // namespace quenby
