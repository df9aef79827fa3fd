#include "shortcuts/ShortcutsAssembly.hpp"

#include <string>

namespace quenby {

namespace {

// Activation errors pass (the application may simply have refused once); the log keeps them for
// whoever looks into a shortcut that seemed to do nothing.
AppSwitchFailureHandler::TransientObserver loggingTransientObserver(Logger& logger,
                                                                    const Localizer& localizer) {
  return [&logger, &localizer](const AppSwitchingError& error) {
    logger.log(LogLevel::error, "Switching",
               "Transient application activation failure: " + error.description(localizer));
  };
}

} // namespace

ShortcutsAssembly::ShortcutsAssembly(const BasePlatform& base, const ShortcutsPlatform& platform,
                                     const UIPlatform& ui,
                                     ConfigurationFailureReporting& configurationReporter,
                                     UsageAnalyticsRecording& usageAnalytics,
                                     AppPreferencesProviding& preferences, Options options)
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
                   metadataReader_, &catalogMonitor_, configurationReporter, *base.localizer),
      appSwitcher_(resolver_, resolver_, *platform.applicationOpener,
                   *platform.applicationPresenceChecker),
      failureHandler_(configurationReporter,
                      loggingTransientObserver(*base.logger, *base.localizer), *base.localizer),
      switchCommands_(appSwitcher_, failureHandler_, usageAnalytics, *base.scheduler),
      appHider_(platform.frontmostHidableApplication),
      frontmostApplication_(platform.frontmostApplication),
      iconCache_(platform.iconLoader, *platform.iconWorkScheduler),
      shortcutAnimation_({.preferences = preferences,
                          .icons = iconCache_,
                          .panelFactory = *ui.shortcutAnimationPanels,
                          .screens = *ui.shortcutAnimationScreens,
                          .motion = *ui.shortcutAnimationMotion,
                          .scheduler = *base.scheduler}),
      optionDigitRegistrar_({.backend = *platform.hotKeyBackend,
                             // A press re-reads the Dock first: App Nap may have stretched the
                             // poll, and a press must never reach a stale position. An unchanged
                             // Dock costs one read and one comparison.
                             .mappings = [this]() -> const KeyboardMappingSnapshot& {
                               if (dockNumberProvider_.isRunning()) {
                                 dockNumberProvider_.reload(false);
                               }
                               return letterStore_.snapshot();
                             },
                             .switchCommands = switchCommands_,
                             .failureHandler = failureHandler_,
                             .configurationReporter = configurationReporter,
                             .preferences = preferences,
                             .frontmostApplications = *frontmostApplication_,
                             .appHider = appHider_,
                             .animation = shortcutAnimation_,
                             .localizer = *base.localizer,
                             .testMonitor = &testMonitor_}),
      optionDigits_(optionDigitRegistrar_, preferences, *platform.symbolicHotKeys),
      runningApplications_(*platform.runningApplications, *base.scheduler) {}

} // namespace quenby
