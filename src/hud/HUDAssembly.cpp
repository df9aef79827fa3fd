#include "hud/HUDAssembly.hpp"

#include "hud/view/KeyboardHUDTexts.hpp"

namespace quenby {

HUDAssembly::HUDAssembly(const BasePlatform& base, const HUDPlatform& platform,
                         const DataPlatform& dataPlatform, DataAssembly& data,
                         ShortcutsAssembly& shortcuts)
    : model_(data.preferences().hudSize(), data.preferences().hudTheme(),
             base.localizer->localized(kHUDOpenSettingsAccessibilityLabel)),
      metrics_(
          HUDPerformanceMetrics::nanosecondsOf(*base.clock), [](HUDPresentationPhase) {},
          *platform.signposter),
      controller_({.mappings = shortcuts.letterStore(),
                   .iconProvider = shortcuts.icons(),
                   .runningApplications = shortcuts.runningApplications(),
                   .switchCommands = shortcuts.switchCommands(),
                   .failureHandler = shortcuts.switchFailureHandler(),
                   .animation = shortcuts.shortcutAnimation(),
                   .appHider = shortcuts.appHider(),
                   .digitInfo = *platform.digitInfo,
                   .preferences = data.preferences(),
                   .windowPlacement = *dataPlatform.windowPlacementSnapshotProvider,
                   .model = model_,
                   .metrics = metrics_,
                   .panelFactory = *platform.panelFactory,
                   .outsideClickMonitor = platform.outsideClicks,
                   .contentAnimationScheduler = *base.scheduler,
                   .actionScheduler = *base.scheduler,
                   .localizer = *base.localizer}),
      router_({.mappings = shortcuts.letterStore(),
               .preferences = data.preferences(),
               .frontmostApplication = shortcuts.frontmostApplication(),
               .characterTranslator = *platform.characterTranslator,
               .testMonitor = &shortcuts.testMonitor()}),
      permission_(platform.permission), eventTap_({.dependencies = platform.eventTap,
                                                   .preferences = data.preferences(),
                                                   .keyStateReader = *platform.keyStateReader,
                                                   .scheduler = *base.scheduler,
                                                   .clock = *base.clock,
                                                   .metrics = metrics_,
                                                   .router = router_,
                                                   .logger = *base.logger}),
      feature_(permission_, eventTap_, UserDefaultsHUDFeaturePreferences(*base.userDefaults),
               *base.scheduler),
      keyboardAccess_(
          *platform.keyboardAccess, [this] { return eventTap_.keyDownCount(); }, *base.scheduler) {
  eventTap_.attach(&controller_);
  eventTap_.setOnFailure(
      [this](GlobalKeyboardEventTapFailure failure) { feature_.handleTapFailure(failure); });
  // Only a running tap can be deaf, and only then do letter shortcuts depend on hearing keys.
  featureHealthObservation_ = feature_.observeHealth([this] {
    if (feature_.health().kind == HUDHealth::Kind::ready) {
      keyboardAccess_.start();
    } else {
      keyboardAccess_.stop();
    }
  });
}

HUDAssembly::~HUDAssembly() {
  featureHealthObservation_.cancel();
  feature_.stop();
  eventTap_.attach(nullptr);
}

} // namespace quenby
