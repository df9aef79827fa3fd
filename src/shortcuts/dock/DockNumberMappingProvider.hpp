#pragma once

#include "base/DistributedNotificationObserving.hpp"
#include "base/LifetimeGuard.hpp"
#include "base/Localizer.hpp"
#include "base/MainScheduler.hpp"
#include "base/ObservationToken.hpp"
#include "shortcuts/catalog/ApplicationCatalogMonitoring.hpp"
#include "shortcuts/catalog/ApplicationResolving.hpp"
#include "shortcuts/dock/DockPreferenceReading.hpp"
#include "shortcuts/dock/PinnedTile.hpp"
#include "shortcuts/mapping/NumberMappingProviding.hpp"

#include <array>
#include <chrono>
#include <optional>
#include <string_view>
#include <vector>

namespace quenby {

inline constexpr LocalizedText kDockPositionText{"diagnostic.dock.position", "Dock position %lld",
                                                 "%lld is a position in the macOS Dock."};
inline constexpr LocalizedText kDockMissingURLText{
    "diagnostic.dock.missing-url", "%@: The pinned Dock application has no readable URL.",
    "%@ is an app name or localized Dock position label."};
inline constexpr LocalizedText kDockMissingIdentifierText{
    "diagnostic.dock.missing-identifier",
    "%@: The pinned Dock application has no bundle identifier.",
    "%@ is an app name or localized Dock position label."};

/// The digit shortcuts' mappings: the first nine pinned applications of the Dock, resolved to
/// installed copies. Re-reads the Dock when it announces a change, polls twice a second for
/// missed announcements, and re-resolves when the installed applications change. Main thread
/// only; every callback it hands out holds it weakly.
///
/// The announcements are what keeps the mappings current; the poll is a backstop that App Nap
/// may stretch to seconds, and that is accepted rather than paid for with an activity assertion
/// held all session (see MainQueueScheduler.mm). The digit press is to call `reload(false)`
/// before it acts, so a late poll never costs a wrong switch: when nothing changed that is one
/// synchronisation and one comparison.
class DockNumberMappingProvider final : public NumberMappingProviding {
public:
  static constexpr std::chrono::milliseconds kPollInterval{500};
  static constexpr std::array<std::string_view, 3> kDockNotificationNames{
      "com.apple.dock.prefchanged", "com.apple.dock.settingschange", "com.apple.dock.restart"};

  /// The references must outlive the provider; `catalogMonitor` may be null.
  DockNumberMappingProvider(DockPreferenceReading& reader, ApplicationResolving& resolver,
                            MainScheduler& scheduler,
                            DistributedNotificationObserving& distributedNotificationCenter,
                            ApplicationCatalogMonitoring* catalogMonitor,
                            const Localizer& localizer);
  DockNumberMappingProvider(const DockNumberMappingProvider&) = delete;
  DockNumberMappingProvider& operator=(const DockNumberMappingProvider&) = delete;

  /// Hooks the catalog monitor and the Dock's notifications, reads the Dock at once, starts the
  /// catalog monitor and the poll. Does nothing while running.
  void start() override;
  /// Ends the poll and the notification observers. Does nothing unless running.
  void stop() override;
  [[nodiscard]] const NumberMappingSnapshot& current() const override { return current_; }
  void setOnSnapshotChanged(SnapshotHandler handler) override {
    onSnapshotChanged_ = std::move(handler);
  }

  /// Reads the Dock and publishes what changed. Unless `force`, an unchanged list of pinned
  /// tiles is not resolved again; `force` re-resolves it (the installed applications changed).
  void reload(bool force);

  [[nodiscard]] bool isRunning() const { return isRunning_; }
  /// The tiles of the last successful read; absent before the first read and after a failure.
  [[nodiscard]] const std::optional<std::vector<PinnedTile>>& lastPinnedTiles() const {
    return lastPinnedTiles_;
  }

private:
  [[nodiscard]] NumberMappingEntries deriveEntries(const std::vector<PinnedTile>& tiles);
  void publish(NumberMappingEntries entries);
  void postReload();
  /// True when `read` cannot select other tiles than the last successful read did.
  [[nodiscard]] bool selectsLastTiles(const DockPersistentApplications& read) const;

  SnapshotHandler onSnapshotChanged_;
  DockPreferenceReading& reader_;
  ApplicationResolving& resolver_;
  MainScheduler& scheduler_;
  DistributedNotificationObserving& distributedNotificationCenter_;
  ApplicationCatalogMonitoring* catalogMonitor_;
  const Localizer& localizer_;
  NumberMappingSnapshot current_;
  ObservationToken pollToken_;
  ObservationToken catalogToken_;
  std::vector<ObservationToken> notificationTokens_;
  /// A reload handed to the scheduler by a notification and not yet run: a burst of
  /// notifications needs one read, not one per notification.
  ObservationToken pendingReload_;
  bool reloadPending_ = false;
  std::optional<std::vector<PinnedTile>> lastPinnedTiles_;
  /// The raw list that gave `lastPinnedTiles_`, and how many of its leading items decided them:
  /// the same leading items give the same tiles, so the poll can stop at a comparison without
  /// building a single string.
  std::optional<DockPersistentApplications> lastPersistentApplications_;
  std::size_t lastItemsRead_ = 0;
  bool isRunning_ = false;
  LifetimeGuard guard_;
};

} // namespace quenby
