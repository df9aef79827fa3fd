#pragma once

#include "app/ConfigurationFailureReporting.hpp"
#include "base/Expected.hpp"
#include "base/LifetimeGuard.hpp"
#include "base/Localizer.hpp"
#include "base/ObservationToken.hpp"
#include "shortcuts/catalog/ApplicationCatalogMonitoring.hpp"
#include "shortcuts/catalog/ApplicationResolving.hpp"
#include "shortcuts/catalog/BundleApplicationMetadataReader.hpp"
#include "shortcuts/mapping/KeyboardMappingSnapshot.hpp"
#include "shortcuts/mapping/KeyboardMappingSnapshotProviding.hpp"
#include "shortcuts/mapping/KeyboardMappingStoreError.hpp"
#include "shortcuts/mapping/LetterMappingRecord.hpp"
#include "shortcuts/mapping/NumberMappingProviding.hpp"
#include "shortcuts/mapping/UserDefaultsMappingPersistence.hpp"

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace quenby {

/// The user's letter mappings (one application per letter, A–Z), kept in the user defaults,
/// combined with the Dock's digit mappings into one `KeyboardMappingSnapshot` for every
/// shortcut consumer.
///
/// What it reads is repaired and, when repairing changed it, written back; what it cannot read
/// is copied aside byte for byte before the main key is reset, and the store starts empty.
/// Failures the user must know about go to the configuration failure reporter. When the
/// installed applications change, every letter is resolved again and a moved application's new
/// location is recorded.
///
/// Snapshots are published in order and never re-entrantly: a change that arrives while one is
/// being published (an observer assigning a letter, a Dock or catalog change delivered from an
/// observer) is applied and published after it. Main thread only; every collaborator must
/// outlive the store.
class KeyboardMappingStore final : public KeyboardMappingSnapshotProviding {
public:
  /// Loads the stored mappings at once. `catalogMonitor` may be null.
  KeyboardMappingStore(NumberMappingProviding& numberProvider, KeyValueStore& defaults,
                       const WallClock& clock, ApplicationResolving& resolver,
                       BundleApplicationMetadataReader& metadataReader,
                       ApplicationCatalogMonitoring* catalogMonitor,
                       ConfigurationFailureReporting& configurationReporter,
                       const Localizer& localizer);
  KeyboardMappingStore(const KeyboardMappingStore&) = delete;
  KeyboardMappingStore& operator=(const KeyboardMappingStore&) = delete;
  ~KeyboardMappingStore() override;

  [[nodiscard]] const KeyboardMappingSnapshot& snapshot() const override { return cachedSnapshot_; }
  /// The repaired records, in letter order, as last stored.
  [[nodiscard]] std::vector<LetterMappingRecord> records() const;

  /// Assigns the application at `application` to `letter` (either case), moving it off any
  /// other letter it had, and stores the result. Returns the new mapping; on an error nothing
  /// changed, in memory or stored.
  Expected<AppMapping, KeyboardMappingStoreError> setLetterMapping(std::string_view letter,
                                                                   const FileURL& application);
  /// Adds repaired records from elsewhere (another Mac's export) without reading their bundles,
  /// which need not be installed here: each takes its letter, and its application leaves any
  /// other letter, as an assignment would; letters the records do not name keep theirs. The
  /// records must hold one letter and one application each. Where each application is now is
  /// asked of the resolver. On an error nothing changed.
  Expected<std::size_t, KeyboardMappingStoreError>
  mergeLetterMappings(const std::vector<LetterMappingRecord>& incoming);
  /// Removes the letter's mapping and stores the result. True when there was one.
  Expected<bool, KeyboardMappingStoreError> removeLetterMapping(std::string_view letter);

  /// `handler` receives every new snapshot until the token ends.
  [[nodiscard]] ObservationToken observe(SnapshotHandler handler) override;

  /// Follows the Dock's digit mappings and the catalog's changes. Does nothing while
  /// monitoring.
  void startMonitoring();
  /// Does nothing unless monitoring.
  void stopMonitoring();
  [[nodiscard]] bool isMonitoring() const { return isMonitoring_; }

private:
  using Observers = std::map<std::uint64_t, SnapshotHandler>;

  void load();
  void recoverCorruptData(const PropertyListValue& unreadable);
  [[nodiscard]] AppMapping mapping(const LetterMappingRecord& record);
  /// Resolves every record again; returns the records with the locations now found.
  [[nodiscard]] std::map<char, LetterMappingRecord> resolveAll();
  [[nodiscard]] bool save(const std::map<char, LetterMappingRecord>& records);
  void report(std::string id, const LocalizedText& title, std::string message);

  void receiveNumberSnapshot(const NumberMappingSnapshot& snapshot);
  void receiveCatalogChange();
  /// Applies every queued change, publishing one snapshot each, unless already doing so.
  void drainMappingChanges();
  void applyCatalogRefresh();
  void publish();

  NumberMappingProviding& numberProvider_;
  UserDefaultsMappingPersistence persistence_;
  ApplicationResolving& resolver_;
  BundleApplicationMetadataReader& metadataReader_;
  ApplicationCatalogMonitoring* catalogMonitor_;
  ConfigurationFailureReporting& configurationReporter_;
  const Localizer& localizer_;
  std::map<char, LetterMappingRecord> records_;
  std::map<char, AppMapping> cachedLetterMappings_;
  KeyboardMappingSnapshot cachedSnapshot_;
  std::uint64_t revision_ = 0;
  std::uint64_t applicationCatalogRevision_ = 0;
  NumberMappingEntries numberEntries_;
  bool isDrainingMappingChanges_ = false;
  std::optional<NumberMappingSnapshot> pendingNumberSnapshot_;
  std::size_t pendingApplicationCatalogRefreshes_ = 0;
  bool pendingRecordsChange_ = false;
  bool isMonitoring_ = false;
  ObservationToken catalogToken_;
  /// Shared with the tokens, which hold it weakly, so a token may outlive the store.
  std::shared_ptr<Observers> observers_ = std::make_shared<Observers>();
  std::uint64_t nextObserverId_ = 0;
  LifetimeGuard guard_;
};

} // namespace quenby
