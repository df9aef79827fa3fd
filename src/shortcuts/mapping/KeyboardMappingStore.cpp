#include "shortcuts/mapping/KeyboardMappingStore.hpp"

#include "base/StringFormatter.hpp"
#include "shortcuts/mapping/KeyboardMappingStoreTexts.hpp"
#include "shortcuts/mapping/LetterMappingDocument.hpp"

#include <algorithm>
#include <cctype>

namespace quenby {
namespace {

bool sameApplication(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](unsigned char x, unsigned char y) {
    return std::tolower(x) == std::tolower(y);
  });
}

std::vector<LetterMappingRecord> inLetterOrder(const std::map<char, LetterMappingRecord>& records) {
  std::vector<LetterMappingRecord> ordered;
  ordered.reserve(records.size());
  for (const auto& [letter, record] : records) {
    ordered.push_back(record);
  }
  return ordered;
}

} // namespace

KeyboardMappingStore::KeyboardMappingStore(NumberMappingProviding& numberProvider,
                                           KeyValueStore& defaults, const WallClock& clock,
                                           ApplicationResolving& resolver,
                                           BundleApplicationMetadataReader& metadataReader,
                                           ApplicationCatalogMonitoring* catalogMonitor,
                                           ConfigurationFailureReporting& configurationReporter,
                                           const Localizer& localizer)
    : numberProvider_(numberProvider), persistence_(defaults, clock), resolver_(resolver),
      metadataReader_(metadataReader), catalogMonitor_(catalogMonitor),
      configurationReporter_(configurationReporter), localizer_(localizer),
      numberEntries_(numberProvider.current().entries) {
  load();
  applicationCatalogRevision_ = resolver_.catalogRevision();
  for (const auto& [letter, record] : records_) {
    cachedLetterMappings_.insert_or_assign(letter, mapping(record));
  }
  cachedSnapshot_ = {
      .revision = revision_,
      .applicationCatalogRevision = applicationCatalogRevision_,
      .numberEntries = numberEntries_,
      .letterMappings = cachedLetterMappings_,
  };
}

KeyboardMappingStore::~KeyboardMappingStore() { stopMonitoring(); }

std::vector<LetterMappingRecord> KeyboardMappingStore::records() const {
  return inLetterOrder(records_);
}

void KeyboardMappingStore::load() {
  const auto stored = persistence_.load();
  if (!stored) {
    return;
  }
  const auto* bytes = stored->data();
  if (bytes == nullptr) {
    recoverCorruptData(*stored);
    return;
  }
  auto document = LetterMappingDocument::read(*bytes);
  if (!document) {
    recoverCorruptData(*stored);
    return;
  }
  for (auto& record : document->records) {
    const char letter = record.letter;
    records_.emplace(letter, std::move(record));
  }
  if (document->changed && !save(records_)) {
    // The repaired mappings stay in use; the next change tries to store them again.
    report("mapping.persistence.normalization-save", kMappingCleanupNotSavedTitle,
           localizer_.localized(kMappingNotSavedText));
  }
}

void KeyboardMappingStore::recoverCorruptData(const PropertyListValue& unreadable) {
  const auto backupKey = persistence_.quarantine(unreadable, LetterMappingDocument::encode({}));
  if (backupKey) {
    report("mapping.persistence.corrupt", kMappingWereResetTitle,
           formatLocalized(localizer_.localized(kMappingCorruptRecoveredMessage), {*backupKey}));
    return;
  }
  const auto& error = backupKey.error();
  report("mapping.persistence.corrupt-recovery." + std::string(error.idSuffix()),
         kMappingNotRecoveredTitle,
         formatLocalized(localizer_.localized(kMappingCorruptRecoveryFailedMessage),
                         {error.backupKey, error.description(localizer_)}));
}

AppMapping KeyboardMappingStore::mapping(const LetterMappingRecord& record) {
  return {
      .displayName = record.displayName,
      .bundleIdentifier = record.bundleIdentifier,
      .lastKnownURL = record.lastKnownURL,
      .resolution = resolver_.resolve(record.bundleIdentifier, record.lastKnownURL),
      .source = MappingSource::letter(record.letter),
  };
}

bool KeyboardMappingStore::save(const std::map<char, LetterMappingRecord>& records) {
  return persistence_.save(LetterMappingDocument::encode(inLetterOrder(records)));
}

void KeyboardMappingStore::report(std::string id, const LocalizedText& title, std::string message) {
  configurationReporter_.report({
      .id = std::move(id),
      .title = localizer_.localized(title),
      .message = std::move(message),
  });
}

Expected<AppMapping, KeyboardMappingStoreError>
KeyboardMappingStore::setLetterMapping(std::string_view letterText, const FileURL& application) {
  const auto letter = LetterMappingRecord::normalizedLetter(letterText);
  if (!letter) {
    return Unexpected{KeyboardMappingStoreError::invalidLetter(std::string(letterText))};
  }
  const auto invalidApplication =
      Unexpected{KeyboardMappingStoreError::invalidApplication(application)};
  if (!application.hasPathExtension("app")) {
    return invalidApplication;
  }
  const auto metadata = metadataReader_.readMetadata(application);
  if (!metadata) {
    return invalidApplication;
  }
  const auto bundleIdentifier = LetterMappingRecord::trimmed(metadata->bundleIdentifier);
  if (bundleIdentifier.empty()) {
    return invalidApplication;
  }
  auto displayName = std::string(LetterMappingRecord::trimmed(metadata->displayName));
  // A record stored with an empty name would make the whole document unreadable next launch.
  if (displayName.empty()) {
    displayName = LetterMappingRecord::trimmed(application.lastPathComponentWithoutExtension());
  }
  if (displayName.empty()) {
    displayName = bundleIdentifier;
  }

  auto records = records_;
  // An application answers to one letter at most: assigning it again moves it.
  std::erase_if(records, [&](const auto& entry) {
    return entry.first != *letter &&
           sameApplication(entry.second.bundleIdentifier, bundleIdentifier);
  });
  LetterMappingRecord record{
      .letter = *letter,
      .bundleIdentifier = std::string(bundleIdentifier),
      .displayName = std::move(displayName),
      .lastKnownURL = application,
      .catalogResolvedURL = std::nullopt,
  };
  record.catalogResolvedURL =
      resolver_.resolve(record.bundleIdentifier, record.lastKnownURL).resolvedURL();
  records.insert_or_assign(*letter, record);
  if (!save(records)) {
    return Unexpected{KeyboardMappingStoreError::notSaved()};
  }
  records_ = std::move(records);
  pendingRecordsChange_ = true;
  drainMappingChanges();
  return mapping(record);
}

Expected<std::size_t, KeyboardMappingStoreError>
KeyboardMappingStore::mergeLetterMappings(const std::vector<LetterMappingRecord>& incoming) {
  auto records = records_;
  for (auto record : incoming) {
    std::erase_if(records, [&](const auto& entry) {
      return entry.first != record.letter &&
             sameApplication(entry.second.bundleIdentifier, record.bundleIdentifier);
    });
    record.catalogResolvedURL =
        resolver_.resolve(record.bundleIdentifier, record.lastKnownURL).resolvedURL();
    records.insert_or_assign(record.letter, std::move(record));
  }
  if (!save(records)) {
    return Unexpected{KeyboardMappingStoreError::notSaved()};
  }
  records_ = std::move(records);
  pendingRecordsChange_ = true;
  drainMappingChanges();
  return incoming.size();
}

Expected<bool, KeyboardMappingStoreError>
KeyboardMappingStore::removeLetterMapping(std::string_view letterText) {
  const auto letter = LetterMappingRecord::normalizedLetter(letterText);
  if (!letter) {
    return Unexpected{KeyboardMappingStoreError::invalidLetter(std::string(letterText))};
  }
  if (records_.count(*letter) == 0) {
    return false;
  }
  auto records = records_;
  records.erase(*letter);
  if (!save(records)) {
    return Unexpected{KeyboardMappingStoreError::notSaved()};
  }
  records_ = std::move(records);
  pendingRecordsChange_ = true;
  drainMappingChanges();
  return true;
}

ObservationToken KeyboardMappingStore::observe(SnapshotHandler handler) {
  const std::uint64_t id = nextObserverId_++;
  observers_->emplace(id, std::move(handler));
  return ObservationToken([observers = std::weak_ptr<Observers>(observers_), id] {
    if (const auto alive = observers.lock()) {
      alive->erase(id);
    }
  });
}

void KeyboardMappingStore::startMonitoring() {
  if (isMonitoring_) {
    return;
  }
  isMonitoring_ = true;
  numberProvider_.setOnSnapshotChanged(guard_.weak(
      [this](const NumberMappingSnapshot& snapshot) { receiveNumberSnapshot(snapshot); }));
  if (catalogMonitor_ != nullptr) {
    catalogToken_ = catalogMonitor_->observe(guard_.weak([this] { receiveCatalogChange(); }));
  }
  // The Dock may have been read, or the catalog refreshed, since the store was built.
  if (numberProvider_.current().entries != numberEntries_) {
    receiveNumberSnapshot(numberProvider_.current());
  }
  if (resolver_.catalogRevision() != applicationCatalogRevision_) {
    receiveCatalogChange();
  }
}

void KeyboardMappingStore::stopMonitoring() {
  if (!isMonitoring_) {
    return;
  }
  isMonitoring_ = false;
  numberProvider_.setOnSnapshotChanged(nullptr);
  catalogToken_.cancel();
}

void KeyboardMappingStore::receiveNumberSnapshot(const NumberMappingSnapshot& snapshot) {
  pendingNumberSnapshot_ = snapshot; // only the latest matters
  drainMappingChanges();
}

void KeyboardMappingStore::receiveCatalogChange() {
  ++pendingApplicationCatalogRefreshes_;
  drainMappingChanges();
}

void KeyboardMappingStore::drainMappingChanges() {
  if (isDrainingMappingChanges_) {
    return; // the drain under way picks it up
  }
  isDrainingMappingChanges_ = true;
  while (true) {
    if (pendingNumberSnapshot_) {
      numberEntries_ = std::move(pendingNumberSnapshot_->entries);
      pendingNumberSnapshot_.reset();
    } else if (pendingRecordsChange_) {
      pendingRecordsChange_ = false;
      cachedLetterMappings_.clear();
      for (const auto& [letter, record] : records_) {
        cachedLetterMappings_.insert_or_assign(letter, mapping(record));
      }
    } else if (pendingApplicationCatalogRefreshes_ > 0) {
      --pendingApplicationCatalogRefreshes_;
      applyCatalogRefresh();
    } else {
      break;
    }
    publish();
  }
  isDrainingMappingChanges_ = false;
}

std::map<char, LetterMappingRecord> KeyboardMappingStore::resolveAll() {
  auto records = records_;
  cachedLetterMappings_.clear();
  for (auto& [letter, record] : records) {
    auto letterMapping = mapping(record);
    if (auto found = letterMapping.resolution.resolvedURL(); found) {
      record.catalogResolvedURL = std::move(found);
    }
    cachedLetterMappings_.insert_or_assign(letter, std::move(letterMapping));
  }
  return records;
}

void KeyboardMappingStore::applyCatalogRefresh() {
  applicationCatalogRevision_ = resolver_.catalogRevision();
  auto healed = resolveAll();
  if (healed == records_) {
    return;
  }
  if (save(healed)) {
    records_ = std::move(healed);
  } else {
    // Memory keeps mirroring what is stored, so the next catalog change tries again.
    report("mapping.persistence.self-heal-save", kMappingUpdateNotSavedTitle,
           localizer_.localized(kMappingNotSavedText));
  }
}

void KeyboardMappingStore::publish() {
  cachedSnapshot_ = {
      .revision = ++revision_,
      .applicationCatalogRevision = applicationCatalogRevision_,
      .numberEntries = numberEntries_,
      .letterMappings = cachedLetterMappings_,
  };
  // An observer may end its own or another's registration, or register a new one, while it
  // hears the news: each is looked up again before it is called, and newcomers wait for the
  // next snapshot.
  const std::uint64_t lastId = nextObserverId_;
  for (auto next = observers_->begin(); next != observers_->end() && next->first < lastId;) {
    const std::uint64_t id = next->first;
    auto handler = next->second;
    handler(cachedSnapshot_);
    next = observers_->upper_bound(id);
  }
}

} // namespace quenby
