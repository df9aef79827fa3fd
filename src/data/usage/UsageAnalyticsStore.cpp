#include "data/usage/UsageAnalyticsStore.hpp"

#include "data/usage/UsageAnalyticsTexts.hpp"

#include <algorithm>
#include <limits>
#include <map>
#include <tuple>
#include <utility>

namespace quenby {

namespace {

using Operation = UsageAnalyticsPersistenceOperation;
using Stage = UsageAnalyticsQuarantineStage;
using Error = UsageAnalyticsStoreError;
constexpr std::string_view kLogCategory = "Usage";

/// The entry under `key` as it was before a change, to put back when the change is not saved.
template <typename Map> class EntryRollback {
public:
  EntryRollback(Map& map, const typename Map::key_type& key) : map_(map), key_(key) {
    if (const auto found = map.find(key); found != map.end()) {
      previous_ = found->second;
    }
  }
  void restore() {
    if (previous_) {
      map_.insert_or_assign(key_, std::move(*previous_));
    } else {
      map_.erase(key_);
    }
  }

private:
  Map& map_;
  typename Map::key_type key_;
  std::optional<typename Map::mapped_type> previous_;
};

std::string_view text(const PropertyListValue::Data& bytes) {
  return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

} // namespace

/// Days taken out of the state by pruning, kept as map nodes so that putting them back neither
/// copies nor allocates.
class UsageAnalyticsStore::PrunedDays {
public:
  using DailyNode = decltype(StoredUsageState::daily)::node_type;
  using AppDailyNode = decltype(StoredUsageState::appDaily)::node_type;

  [[nodiscard]] bool empty() const { return daily.empty() && appDaily.empty(); }
  void restoreInto(StoredUsageState& state) {
    for (auto& node : daily) {
      state.daily.insert(std::move(node));
    }
    for (auto& node : appDaily) {
      state.appDaily.insert(std::move(node));
    }
    daily.clear();
    appDaily.clear();
  }

  std::vector<DailyNode> daily;
  std::vector<AppDailyNode> appDaily;
};

bool UsageAnalyticsStore::Window::contains(const UsageDayKey& day) const {
  return std::binary_search(days.begin(), days.end(), day);
}

UsageAnalyticsStore::UsageAnalyticsStore(Dependencies dependencies)
    : defaults_(dependencies.defaults), calendar_(dependencies.calendar),
      clock_(dependencies.clock), localizer_(dependencies.localizer), logger_(dependencies.logger),
      reporter_(dependencies.reporter), makeUUID_(std::move(dependencies.makeUUID)),
      defaultStartDate_(dependencies.defaultStartDate.value_or(clock_.now())) {
  load();
}

std::optional<UsageAnalyticsStore::Window> UsageAnalyticsStore::window() const {
  const auto startOfToday = calendar_.startOfDay(clock_.now());
  const auto today = startOfToday ? calendar_.day(*startOfToday) : std::nullopt;
  if (!today) {
    logger_.log(LogLevel::error, kLogCategory, localizer_.localized(kUsageCalendarDayFailedText));
    return std::nullopt;
  }
  return Window{.startOfToday = *startOfToday,
                .today = UsageDayKey::from(*today),
                .days = windowDays(calendar_, *startOfToday)};
}

std::vector<UsageDayKey> UsageAnalyticsStore::windowDays(const UsageCalendar& calendar,
                                                         WallTime startOfToday) {
  std::vector<UsageDayKey> days;
  days.reserve(kWindowDays);
  for (int offset = 1 - kWindowDays; offset <= 0; ++offset) {
    const auto moment = calendar.addingDays(offset, startOfToday);
    if (const auto day = moment ? calendar.day(*moment) : std::nullopt) {
      days.push_back(UsageDayKey::from(*day));
    }
  }
  // Sorted and distinct whatever the calendar answered, for the lookups.
  std::sort(days.begin(), days.end());
  days.erase(std::unique(days.begin(), days.end()), days.end());
  return days;
}

StoredUsageState UsageAnalyticsStore::emptyState() const {
  StoredUsageState state;
  state.startedOn = StoredUsageState::referenceDateSeconds(defaultStartDate_);
  return state;
}

std::string UsageAnalyticsStore::makeBackupKey() const {
  const auto milliseconds =
      std::chrono::floor<std::chrono::milliseconds>(clock_.now().time_since_epoch()).count();
  std::string key(kBackupKeyPrefix);
  key.append(std::to_string(milliseconds)).append(".").append(makeUUID_());
  return key;
}

void UsageAnalyticsStore::load() {
  const auto stored = defaults_.object(kStorageKey);
  if (!stored) {
    state_ = emptyState();
    return;
  }
  // A value of another kind is as unreadable as bad bytes, and is set aside the same way.
  const auto* bytes = stored->data();
  auto decoded = bytes != nullptr ? StoredUsageState::decode(text(*bytes))
                                  : Expected<StoredUsageState, StoredUsageState::DecodeFailure>(
                                        Unexpected{StoredUsageState::DecodeFailure{}});
  if (!decoded) {
    quarantine(*stored, decoded.error().unsupportedVersion);
    return;
  }
  state_ = std::move(decoded).value();
  state_.version = StoredUsageState::kFormatVersion;
  refresh();
}

void UsageAnalyticsStore::quarantine(const PropertyListValue& payload,
                                     std::optional<std::int64_t> version) {
  state_ = emptyState();
  auto backupKey = makeBackupKey();
  std::optional<std::pair<Stage, UsageAnalyticsWriteError>> failure;
  if (!defaults_.setVerified(backupKey, payload)) {
    failure.emplace(Stage::backup, UsageAnalyticsWriteError{backupKey});
    unsavedPayload_ = payload;
  } else if (!defaults_.setVerified(kStorageKey, state_.encodedValue())) {
    failure.emplace(Stage::reset, UsageAnalyticsWriteError{std::string(kStorageKey)});
  }

  if (!failure) {
    fail(version ? Error(Error::UnsupportedVersionRecovered{*version, std::move(backupKey)})
                 : Error(Error::CorruptPayloadRecovered{std::move(backupKey)}));
  } else if (version) {
    fail(Error::UnsupportedVersionRecoveryFailed{*version, std::move(backupKey), failure->first,
                                                 std::move(failure->second)});
  } else {
    fail(Error::CorruptPayloadRecoveryFailed{std::move(backupKey), failure->first,
                                             std::move(failure->second)});
  }
}

UsageAnalyticsStore::PrunedDays UsageAnalyticsStore::pruneOutside(const Window& window) {
  PrunedDays pruned;
  for (auto day = state_.daily.begin(); day != state_.daily.end();) {
    const auto next = std::next(day);
    if (!window.contains(day->first)) {
      pruned.daily.push_back(state_.daily.extract(day));
    }
    day = next;
  }
  for (auto day = state_.appDaily.begin(); day != state_.appDaily.end();) {
    const auto next = std::next(day);
    if (!window.contains(day->first)) {
      pruned.appDaily.push_back(state_.appDaily.extract(day));
    }
    day = next;
  }
  return pruned;
}

std::optional<UsageAnalyticsWriteError> UsageAnalyticsStore::write(const StoredUsageState& state) {
  if (unsavedPayload_) {
    auto backupKey = makeBackupKey();
    if (!defaults_.setVerified(backupKey, *unsavedPayload_)) {
      return UsageAnalyticsWriteError{std::move(backupKey)};
    }
    unsavedPayload_.reset();
    logger_.log(LogLevel::info, kLogCategory,
                "Unreadable usage analytics data copied to " + backupKey);
  }
  if (!defaults_.setVerified(kStorageKey, state.encodedValue())) {
    return UsageAnalyticsWriteError{std::string(kStorageKey)};
  }
  return std::nullopt;
}

void UsageAnalyticsStore::clearPersistenceError() {
  if (lastError_ && lastError_->as<Error::PersistenceFailed>() != nullptr) {
    lastError_.reset();
  }
}

void UsageAnalyticsStore::fail(UsageAnalyticsStoreError error) {
  logger_.log(LogLevel::error, kLogCategory, error.localizedDescription(localizer_));
  reporter_.report(error.configurationFailure(localizer_));
  lastError_ = std::move(error);
}

void UsageAnalyticsStore::recordUse(UsageCategory category) {
  const auto window = this->window();
  if (!window) {
    return;
  }
  auto pruned = pruneOutside(*window);
  const auto previousTotals = state_.totals;
  const auto previousStartedOn = state_.startedOn;
  EntryRollback dayRollback(state_.daily, window->today);

  if (previousTotals.isEmpty() || !state_.startedOn) {
    state_.startedOn = StoredUsageState::referenceDateSeconds(window->startOfToday);
  }
  state_.totals.increment(category);
  state_.daily[window->today].totals.increment(category);

  if (auto error = write(state_)) {
    dayRollback.restore();
    state_.totals = previousTotals;
    state_.startedOn = previousStartedOn;
    pruned.restoreInto(state_);
    fail(Error::PersistenceFailed{Operation::save, std::move(*error)});
    return;
  }
  clearPersistenceError();
}

void UsageAnalyticsStore::recordShortcutUse(const AppMapping& mapping) {
  recordUse(mapping.source.kind() == MappingSource::Kind::dock ? UsageCategory::optionDigit
                                                               : UsageCategory::optionLetter);
}

void UsageAnalyticsStore::recordSwitchOutcome(StoredAppOutcome outcome, const AppMapping& mapping) {
  const auto window = this->window();
  if (!window) {
    return;
  }
  auto pruned = pruneOutside(*window);
  const auto previousStartedOn = state_.startedOn;
  EntryRollback appRollback(state_.apps, mapping.bundleIdentifier);
  EntryRollback dayRollback(state_.appDaily, window->today);

  if (!state_.startedOn) {
    state_.startedOn = StoredUsageState::referenceDateSeconds(window->startOfToday);
  }
  state_.apps[mapping.bundleIdentifier].record(outcome, mapping.displayName);
  state_.appDaily[window->today][mapping.bundleIdentifier].record(outcome, mapping.displayName);

  if (auto error = write(state_)) {
    dayRollback.restore();
    appRollback.restore();
    state_.startedOn = previousStartedOn;
    pruned.restoreInto(state_);
    fail(Error::PersistenceFailed{Operation::save, std::move(*error)});
    return;
  }
  clearPersistenceError();
}

void UsageAnalyticsStore::refresh() {
  const auto window = this->window();
  if (!window) {
    return;
  }
  auto pruned = pruneOutside(*window);
  if (pruned.empty()) {
    return;
  }
  if (auto error = write(state_)) {
    pruned.restoreInto(state_);
    fail(Error::PersistenceFailed{Operation::prune, std::move(*error)});
    return;
  }
  clearPersistenceError();
}

void UsageAnalyticsStore::reset() {
  // The user chose to start again, so unreadable data whose copy could not be made goes too.
  unsavedPayload_.reset();
  auto fresh = emptyState();
  if (auto error = write(fresh)) {
    fail(Error::PersistenceFailed{Operation::reset, std::move(*error)});
    return;
  }
  state_ = std::move(fresh);
  lastError_.reset();
}

UsageAnalyticsSnapshot UsageAnalyticsStore::snapshot() const {
  const auto window = this->window();
  return UsageAnalyticsSnapshot::make(state_, window ? window->days : std::vector<UsageDayKey>{},
                                      lastError_);
}

} // namespace quenby
