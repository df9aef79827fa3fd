#include "app/AppRuntime.hpp"

#include <utility>

namespace quenby {

AppRuntime::AppRuntime(PlatformServices services, AppRuntimeConfiguration configuration)
    : services_(std::move(services)), configuration_(configuration),
      configurationFailurePresenter_(*services_.failurePanelFactory),
      configurationReporter_(*services_.userDefaults, &configurationFailurePresenter_),
      metadataReader_(*services_.fileSystem, *services_.propertyListDecoder),
      resolver_(*services_.applicationLocator, metadataReader_, *services_.fileSystem),
      catalogDistributedObserver_(*services_.distributedNotificationCenter),
      applicationCatalogMonitor_(resolver_, *services_.spotlightQuery,
                                 *services_.workspaceNotifications, catalogDistributedObserver_,
                                 *services_.scheduler),
      // While the HUD is being measured the catalog monitor must be neither started nor
      // stopped, so the Dock provider does not get to start it either.
      dockNumberProvider_(*services_.dockPreferenceReader, resolver_, *services_.scheduler,
                          *services_.distributedNotificationCenter,
                          configuration_.isHUDPerformanceMeasurement ? nullptr
                                                                     : &applicationCatalogMonitor_,
                          *services_.localizer),
      appPreferences_(*services_.userDefaults,
                      AppPreferencesStore::loggingReporter(*services_.logger)),
      shortcutDiagnosticsHealth_(&shortcutDiagnostics_), lifecycle_(makeLifecycle()) {}

AppRuntime::~AppRuntime() {
  // Nothing may reach the presenter or the diagnostics while the graph comes down.
  configurationReporter_.setPresenter(nullptr);
  shortcutDiagnosticsHealth_.setDiagnostics(nullptr);
}

AppCoordinatorLifecycle AppRuntime::makeLifecycle() {
  AppCoordinatorLifecycle lifecycle;
  lifecycle.setAccessoryActivationPolicy = [this] {
    services_.activationPolicy->becomeAccessory();
  };
  lifecycle.startDock = [this] { dockNumberProvider_.start(); };
  lifecycle.initialSnapshot = [this] {
    KeyboardMappingSnapshot snapshot;
    snapshot.applicationCatalogRevision = resolver_.catalogRevision();
    snapshot.numberEntries = dockNumberProvider_.current().entries;
    return snapshot;
  };
  lifecycle.startCatalogMonitoring = [this] { applicationCatalogMonitor_.start(); };
  lifecycle.stopCatalogMonitoring = [this] { applicationCatalogMonitor_.stop(); };
  lifecycle.stopDock = [this] { dockNumberProvider_.stop(); };
  return lifecycle;
}

} // namespace quenby
