#include "shortcuts/ShortcutsAssembly.hpp"

namespace quenby {

ShortcutsAssembly::ShortcutsAssembly(const BasePlatform& base, const ShortcutsPlatform& platform,
                                     ConfigurationFailureReporting& configurationReporter,
                                     Options options)
    : metadataReader_(*base.fileSystem, *base.propertyListDecoder),
      resolver_(*platform.applicationLocator, metadataReader_, *base.fileSystem),
      catalogDistributedObserver_(*base.distributedNotificationCenter),
      catalogMonitor_(resolver_, *platform.spotlightQuery, *platform.workspaceNotifications,
                      catalogDistributedObserver_, *base.scheduler),
      dockNumberProvider_(*platform.dockPreferenceReader, resolver_, *base.scheduler,
                          *base.distributedNotificationCenter,
                          options.dockStartsCatalogMonitor ? &catalogMonitor_ : nullptr,
                          *base.localizer),
      letterStore_(dockNumberProvider_, *base.userDefaults, *base.wallClock, resolver_,
                   metadataReader_, &catalogMonitor_, configurationReporter, *base.localizer) {}

} // namespace quenby
