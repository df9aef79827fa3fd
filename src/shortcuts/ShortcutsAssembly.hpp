#pragma once

#include "base/BasePlatform.hpp"
#include "shortcuts/ShortcutsPlatform.hpp"
#include "shortcuts/catalog/BundleApplicationMetadataReader.hpp"
#include "shortcuts/catalog/SystemApplicationCatalogDistributedObserver.hpp"
#include "shortcuts/catalog/WorkspaceApplicationCatalogMonitor.hpp"
#include "shortcuts/catalog/WorkspaceApplicationResolver.hpp"
#include "shortcuts/dock/DockNumberMappingProvider.hpp"
#include "shortcuts/mapping/KeyboardMappingSnapshot.hpp"

namespace quenby {

/// The shortcuts' feature objects: the application catalog and resolver, and the Dock's digit
/// mappings. `base` and `platform` must outlive it.
class ShortcutsAssembly {
public:
  struct Options {
    /// Off while the HUD's presentation is measured: then nothing may start or stop the
    /// catalog monitor, so the Dock provider is not given it.
    bool dockStartsCatalogMonitor = true;
  };

  ShortcutsAssembly(const BasePlatform& base, const ShortcutsPlatform& platform, Options options);
  ShortcutsAssembly(const ShortcutsAssembly&) = delete;
  ShortcutsAssembly& operator=(const ShortcutsAssembly&) = delete;

  void startDock() { dockNumberProvider_.start(); }
  void stopDock() { dockNumberProvider_.stop(); }
  void startCatalogMonitoring() { catalogMonitor_.start(); }
  void stopCatalogMonitoring() { catalogMonitor_.stop(); }
  /// The mappings as they stand: the Dock's positions against the current catalog.
  [[nodiscard]] KeyboardMappingSnapshot mappingSnapshot() const;

  [[nodiscard]] const DockNumberMappingProvider& dockNumberProvider() const {
    return dockNumberProvider_;
  }
  [[nodiscard]] WorkspaceApplicationResolver& resolver() { return resolver_; }

private:
  BundleApplicationMetadataReader metadataReader_;
  WorkspaceApplicationResolver resolver_;
  SystemApplicationCatalogDistributedObserver catalogDistributedObserver_;
  WorkspaceApplicationCatalogMonitor catalogMonitor_;
  DockNumberMappingProvider dockNumberProvider_;
};

} // namespace quenby
