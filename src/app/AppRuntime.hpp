#pragma once

#include "app/AppCoordinatorLifecycle.hpp"
#include "app/AppRuntimeConfiguration.hpp"
#include "app/OneTimeConfigurationFailureReporter.hpp"
#include "app/PlatformServices.hpp"
#include "app/ShortcutDiagnostics.hpp"
#include "app/ShortcutDiagnosticsHealthAdapter.hpp"
#include "app/SystemConfigurationFailurePanelPresenter.hpp"
#include "data/AppPreferencesStore.hpp"
#include "shortcuts/catalog/BundleApplicationMetadataReader.hpp"
#include "shortcuts/catalog/SystemApplicationCatalogDistributedObserver.hpp"
#include "shortcuts/catalog/WorkspaceApplicationCatalogMonitor.hpp"
#include "shortcuts/catalog/WorkspaceApplicationResolver.hpp"
#include "shortcuts/dock/DockNumberMappingProvider.hpp"

namespace quenby {

/// The object graph: every feature object, created once, in a fixed order, from the platform's
/// adapters, plus the lifecycle closures the coordinator runs over them. Everything lives exactly
/// as long as this object; members are declared in creation order, so teardown runs in reverse.
class AppRuntime {
public:
  AppRuntime(PlatformServices services, AppRuntimeConfiguration configuration);
  AppRuntime(const AppRuntime&) = delete;
  AppRuntime& operator=(const AppRuntime&) = delete;
  ~AppRuntime();

  [[nodiscard]] const AppCoordinatorLifecycle& lifecycle() const { return lifecycle_; }
  [[nodiscard]] const PlatformServices& services() const { return services_; }
  [[nodiscard]] AppPreferencesStore& appPreferences() { return appPreferences_; }
  [[nodiscard]] ConfigurationFailureReporting& configurationReporter() {
    return configurationReporter_;
  }
  [[nodiscard]] const DockNumberMappingProvider& dockNumberProvider() const {
    return dockNumberProvider_;
  }
  [[nodiscard]] WorkspaceApplicationResolver& resolver() { return resolver_; }

private:
  AppCoordinatorLifecycle makeLifecycle();

  PlatformServices services_;
  AppRuntimeConfiguration configuration_;
  SystemConfigurationFailurePanelPresenter configurationFailurePresenter_;
  OneTimeConfigurationFailureReporter configurationReporter_;
  BundleApplicationMetadataReader metadataReader_;
  WorkspaceApplicationResolver resolver_;
  SystemApplicationCatalogDistributedObserver catalogDistributedObserver_;
  WorkspaceApplicationCatalogMonitor applicationCatalogMonitor_;
  DockNumberMappingProvider dockNumberProvider_;
  AppPreferencesStore appPreferences_;
  ShortcutDiagnostics shortcutDiagnostics_;
  ShortcutDiagnosticsHealthAdapter shortcutDiagnosticsHealth_;
  AppCoordinatorLifecycle lifecycle_;
};

} // namespace quenby
