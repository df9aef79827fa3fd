#include "shortcuts/ShortcutsAssembly.hpp"

namespace quenby {

ShortcutsAssembly::ShortcutsAssembly(const BasePlatform& base, const ShortcutsPlatform& platform,
                                     Options options)
    : metadataReader_(*base.fileSystem, *base.propertyListDecoder),
      resolver_(*platform.applicationLocator, metadataReader_, *base.fileSystem),
      catalogDistributedObserver_(*base.distributedNotificationCenter),
      catalogMonitor_(resolver_, *platform.spotlightQuery, *platform.workspaceNotifications,
                      catalogDistributedObserver_, *base.scheduler),
      dockNumberProvider_(*platform.dockPreferenceReader, resolver_, *base.scheduler,
                          *base.distributedNotificationCenter,
                          options.dockStartsCatalogMonitor ? &catalogMonitor_ : nullptr,
                          *base.localizer) {}

KeyboardMappingSnapshot ShortcutsAssembly::mappingSnapshot() const {
  KeyboardMappingSnapshot snapshot;
  snapshot.applicationCatalogRevision = resolver_.catalogRevision();
  snapshot.numberEntries = dockNumberProvider_.current().entries;
  return snapshot;
}

} // namespace quenby
