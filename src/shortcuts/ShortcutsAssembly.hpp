#pragma once

#include "app/ConfigurationFailureReporting.hpp"
#include "base/BasePlatform.hpp"
#include "data/AppPreferencesProviding.hpp"
#include "data/usage/UsageAnalyticsRecording.hpp"
#include "shortcuts/ShortcutsPlatform.hpp"
#include "shortcuts/catalog/BundleApplicationMetadataReader.hpp"
#include "shortcuts/catalog/SystemApplicationCatalogDistributedObserver.hpp"
#include "shortcuts/catalog/WorkspaceApplicationCatalogMonitor.hpp"
#include "shortcuts/catalog/WorkspaceApplicationResolver.hpp"
#include "shortcuts/dock/DockNumberMappingProvider.hpp"
#include "shortcuts/hotkeys/OptionDigitHotKeyFeatureController.hpp"
#include "shortcuts/hotkeys/OptionDigitHotKeyRegistrar.hpp"
#include "shortcuts/mapping/KeyboardMappingSnapshot.hpp"
#include "shortcuts/mapping/KeyboardMappingStore.hpp"
#include "shortcuts/running/ApplicationIconCache.hpp"
#include "shortcuts/running/WorkspaceRunningApplicationMonitor.hpp"
#include "shortcuts/switching/AppSwitchCommandQueue.hpp"
#include "shortcuts/switching/AppSwitchFailureHandler.hpp"
#include "shortcuts/switching/ShortcutTestMonitor.hpp"
#include "shortcuts/switching/WorkspaceAppHider.hpp"
#include "shortcuts/switching/WorkspaceAppSwitchingAdapter.hpp"
#include "ui/UIPlatform.hpp"
#include "ui/animation/ShortcutAnimationController.hpp"

#include <memory>

namespace quenby {

/// The shortcuts' feature objects: the application catalog and resolver, the Dock's digit
/// mappings, the user's letter mappings, and switching to or hiding a mapped application.
/// Every accepted shortcut also plays the shortcut animation, built here from the UI's adapters.
/// `base`, `platform`, `ui`, the reporter and the usage recorder must outlive it.
class ShortcutsAssembly {
public:
  struct Options {
    /// Off while the HUD's presentation is measured: then nothing may start or stop the
    /// catalog monitor, so the Dock provider is not given it.
    bool dockStartsCatalogMonitor = true;
  };

  /// Reads the stored letter mappings at once; what needs the user goes to
  /// `configurationReporter`.
  ShortcutsAssembly(const BasePlatform& base, const ShortcutsPlatform& platform,
                    const UIPlatform& ui, ConfigurationFailureReporting& configurationReporter,
                    UsageAnalyticsRecording& usageAnalytics, AppPreferencesProviding& preferences,
                    Options options);
  ShortcutsAssembly(const ShortcutsAssembly&) = delete;
  ShortcutsAssembly& operator=(const ShortcutsAssembly&) = delete;

  /// Starts the Dock's mappings and has the letter store follow them (and the catalog) from
  /// then on, so the first snapshot already holds the Dock.
  void startDock() {
    dockNumberProvider_.start();
    letterStore_.startMonitoring();
  }
  void stopMappings() { letterStore_.stopMonitoring(); }
  void stopDock() {
    letterStore_.stopMonitoring();
    dockNumberProvider_.stop();
  }
  void startCatalogMonitoring() { catalogMonitor_.start(); }
  void stopCatalogMonitoring() { catalogMonitor_.stop(); }
  /// Pending switches are dropped and no new ones are accepted.
  void stopSwitchCommands() { switchCommands_.stop(); }
  /// Registers the modifier-digit hot keys and follows the modifier preference.
  void startOptionDigits() { optionDigits_.start(); }
  void stopOptionDigits() { optionDigits_.stop(); }
  /// Starts loading the icons of `snapshot`'s applications and follows every later snapshot.
  void preloadIcons(const KeyboardMappingSnapshot& snapshot) {
    iconCache_.preload(snapshot);
    iconUpdates_ = letterStore_.observe(
        [this](const KeyboardMappingSnapshot& next) { iconCache_.update(next); });
  }
  void startRunningApplications() { runningApplications_.start(); }
  void stopRunningApplications() { runningApplications_.stop(); }
  /// The mappings as they stand: the Dock's positions and the letters.
  [[nodiscard]] const KeyboardMappingSnapshot& mappingSnapshot() const {
    return letterStore_.snapshot();
  }

  [[nodiscard]] const DockNumberMappingProvider& dockNumberProvider() const {
    return dockNumberProvider_;
  }
  [[nodiscard]] WorkspaceApplicationResolver& resolver() { return resolver_; }
  [[nodiscard]] KeyboardMappingStore& letterStore() { return letterStore_; }
  [[nodiscard]] const OptionDigitHotKeyFeatureController& optionDigits() const {
    return optionDigits_;
  }
  [[nodiscard]] OptionDigitHotKeyFeatureController& optionDigits() { return optionDigits_; }
  [[nodiscard]] ApplicationIconCache& icons() { return iconCache_; }
  [[nodiscard]] WorkspaceRunningApplicationMonitor& runningApplications() {
    return runningApplications_;
  }
  [[nodiscard]] AppSwitchCommandQueue& switchCommands() { return switchCommands_; }
  [[nodiscard]] AppSwitchFailureHandling& switchFailureHandler() { return failureHandler_; }
  [[nodiscard]] AppHiding& appHider() { return appHider_; }
  /// Played by every accepted digit, letter or HUD shortcut.
  [[nodiscard]] ShortcutAnimationPresenting& shortcutAnimation() { return shortcutAnimation_; }
  [[nodiscard]] const FrontmostApplicationProviding& frontmostApplication() const {
    return *frontmostApplication_;
  }
  /// Consulted by the digit and letter shortcuts: while armed, a press is described, not acted on.
  [[nodiscard]] ShortcutTestMonitor& testMonitor() { return testMonitor_; }

private:
  BundleApplicationMetadataReader metadataReader_;
  WorkspaceApplicationResolver resolver_;
  SystemApplicationCatalogDistributedObserver catalogDistributedObserver_;
  WorkspaceApplicationCatalogMonitor catalogMonitor_;
  DockNumberMappingProvider dockNumberProvider_;
  KeyboardMappingStore letterStore_;
  WorkspaceAppSwitchingAdapter appSwitcher_;
  AppSwitchFailureHandler failureHandler_;
  AppSwitchCommandQueue switchCommands_;
  WorkspaceAppHider appHider_;
  std::shared_ptr<FrontmostApplicationProviding> frontmostApplication_;
  // Before the animation, which shows its icons.
  ApplicationIconCache iconCache_;
  ShortcutAnimationController shortcutAnimation_;
  ShortcutTestMonitor testMonitor_;
  OptionDigitHotKeyRegistrar optionDigitRegistrar_;
  OptionDigitHotKeyFeatureController optionDigits_;
  WorkspaceRunningApplicationMonitor runningApplications_;
  ObservationToken iconUpdates_;
};

} // namespace quenby
