#include "shortcuts/dock/DockNumberMappingProvider.hpp"

#include "base/StringFormatter.hpp"
#include "shortcuts/dock/DockTileSelection.hpp"

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <string>

namespace quenby {

DockNumberMappingProvider::DockNumberMappingProvider(
    DockPreferenceReading& reader, ApplicationResolving& resolver, MainScheduler& scheduler,
    DistributedNotificationObserving& distributedNotificationCenter,
    ApplicationCatalogMonitoring* catalogMonitor, const Localizer& localizer)
    : reader_(reader), resolver_(resolver), scheduler_(scheduler),
      distributedNotificationCenter_(distributedNotificationCenter),
      catalogMonitor_(catalogMonitor), localizer_(localizer),
      current_(NumberMappingSnapshot::placeholder(localizer)) {}

void DockNumberMappingProvider::start() {
  if (isRunning_) {
    return;
  }
  isRunning_ = true;
  if (catalogMonitor_ != nullptr) {
    catalogToken_ = catalogMonitor_->observe(guard_.weak([this] { reload(true); }));
  }
  for (const std::string_view name : kDockNotificationNames) {
    notificationTokens_.push_back(distributedNotificationCenter_.observe(
        std::string(name), guard_.weak([this] { postReload(); })));
  }
  reload(false);
  if (catalogMonitor_ != nullptr) {
    catalogMonitor_->start();
  }
  pollToken_ = scheduler_.scheduleRepeating(kPollInterval, guard_.weak([this] { reload(false); }));
}

void DockNumberMappingProvider::stop() {
  if (!isRunning_) {
    return;
  }
  isRunning_ = false;
  pollToken_.cancel();
  catalogToken_.cancel();
  notificationTokens_.clear();
  pendingReload_.cancel();
  reloadPending_ = false;
}

void DockNumberMappingProvider::postReload() {
  if (reloadPending_) {
    return;
  }
  reloadPending_ = true;
  pendingReload_ = scheduler_.post(guard_.weak([this] {
    reloadPending_ = false;
    reload(false);
  }));
}

void DockNumberMappingProvider::reload(bool force) {
  auto read = reader_.readPersistentApplications();
  if (!read) {
    lastPinnedTiles_.reset();
    lastPersistentApplications_.reset();
    const auto entry = NumberMappingEntry::unavailable(NumberMappingProblem::preferencesUnavailable(
        localizedDescription(read.error(), localizer_)));
    NumberMappingEntries entries;
    for (int position = NumberMappingEntries::kFirstPosition;
         position <= NumberMappingEntries::kLastPosition; ++position) {
      entries.set(position, entry);
    }
    publish(std::move(entries));
    return;
  }
  if (!force && selectsLastTiles(*read)) {
    return;
  }
  auto tiles = selectPinnedTiles(read->items(), lastItemsRead_);
  lastPersistentApplications_ = std::move(*read);
  if (!force && lastPinnedTiles_ == tiles) {
    return;
  }
  lastPinnedTiles_ = std::move(tiles);
  publish(deriveEntries(*lastPinnedTiles_));
}

bool DockNumberMappingProvider::selectsLastTiles(const DockPersistentApplications& read) const {
  if (!lastPinnedTiles_ || !lastPersistentApplications_) {
    return false;
  }
  const auto& previous = lastPersistentApplications_->items();
  const auto& items = read.items();
  if (&previous == &items) {
    return true;
  }
  // Fewer than nine tiles means every item was read, and one more item could add a tile.
  const bool wasFull = lastPinnedTiles_->size() == kMaximumPinnedTiles;
  if (wasFull ? items.size() < lastItemsRead_ : items.size() != previous.size()) {
    return false;
  }
  const auto decided = static_cast<std::ptrdiff_t>(lastItemsRead_);
  return std::equal(items.begin(), items.begin() + decided, previous.begin());
}

NumberMappingEntries
DockNumberMappingProvider::deriveEntries(const std::vector<PinnedTile>& tiles) {
  NumberMappingEntries entries;
  int position = NumberMappingEntries::kFirstPosition;
  for (const auto& tile : tiles) {
    std::string label;
    if (tile.label) {
      label = *tile.label;
    } else if (tile.url) {
      label = tile.url->lastPathComponentWithoutExtension();
    } else {
      label = formatLocalized(localizer_.localized(kDockPositionText),
                              {static_cast<long long>(position)});
    }
    if (!tile.url) {
      entries.set(position,
                  NumberMappingEntry::unavailable(NumberMappingProblem::invalidDockEntry(
                      formatLocalized(localizer_.localized(kDockMissingURLText), {label}))));
    } else if (!tile.bundleIdentifier) {
      entries.set(position,
                  NumberMappingEntry::unavailable(NumberMappingProblem::invalidDockEntry(
                      formatLocalized(localizer_.localized(kDockMissingIdentifierText), {label}))));
    } else {
      auto resolution = resolver_.resolve(*tile.bundleIdentifier, *tile.url);
      entries.set(position, NumberMappingEntry::mapped(
                                AppMapping{std::move(label), *tile.bundleIdentifier, *tile.url,
                                           std::move(resolution), MappingSource::dock(position)}));
    }
    ++position;
  }
  // Positions past the last tile keep their default: an empty Dock position.
  return entries;
}

void DockNumberMappingProvider::publish(NumberMappingEntries entries) {
  if (entries == current_.entries) {
    return;
  }
  if (current_.revision == std::numeric_limits<std::uint64_t>::max()) {
    // Revisions order every snapshot the consumers ever saw; reusing one would let a stale
    // snapshot pass for the newest.
    std::abort();
  }
  current_.revision += 1;
  current_.entries = std::move(entries);
  if (onSnapshotChanged_) {
    onSnapshotChanged_(current_);
  }
}

} // namespace quenby
