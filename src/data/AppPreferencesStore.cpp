#include "data/AppPreferencesStore.hpp"

namespace quenby {

namespace {

constexpr std::string_view kSizeValueNotPersisted =
    "HUD size migration persistence error: Failed to persist migrated HUD size value.";
constexpr std::string_view kSizeVersionNotPersisted =
    "HUD size migration persistence error: Failed to persist migrated HUD size version.";

/// The older scale had "small", "medium" and "large"; its two smaller sizes both fit the new
/// small one and its large one is today's standard.
HUDSizePreference sizeFromOlderScale(const std::optional<std::string>& stored) {
  if (stored == "small" || stored == "medium") {
    return HUDSizePreference::small;
  }
  return HUDSizePreference::standard;
}

} // namespace

AppPreferencesStore::AppPreferencesStore(KeyValueStore& storage,
                                         MigrationFailureReporter migrationFailureReporter)
    : storage_(storage), migrationFailureReporter_(std::move(migrationFailureReporter)) {
  migrateHUDSize();
}

AppPreferencesStore::MigrationFailureReporter AppPreferencesStore::loggingReporter(Logger& logger) {
  return [&logger](const std::string& message) {
    logger.log(LogLevel::error, "Preferences", message);
  };
}

template <AppPreferenceProperty P> AppPreferenceValue<P> AppPreferencesStore::current() const {
  if constexpr (P == AppPreferenceProperty::hudSize) {
    if (migratedHUDSizeFallback_) {
      return *migratedHUDSizeFallback_;
    }
  }
  return stored<P>();
}

template <AppPreferenceProperty P> AppPreferenceValue<P> AppPreferencesStore::stored() const {
  const auto object = storage_.object(appPreference<P>().key);
  return appPreference<P>().read(object ? &*object : nullptr);
}

template <AppPreferenceProperty P> void AppPreferencesStore::assign(AppPreferenceValue<P> value) {
  if constexpr (P == AppPreferenceProperty::hudSize) {
    if (migratedHUDSizeFallback_) {
      retryHUDSizeMigration(value);
      return;
    }
  }
  if (stored<P>() == value) {
    return;
  }
  storage_.set(appPreference<P>().key, appPreference<P>().stored(value));
  notify(AppPreferenceChange::to<P>(value));
}

void AppPreferencesStore::notify(AppPreferenceChange change) {
  // A copy, because a handler may add or cancel observations while the list is being walked.
  std::vector<Handler> handlers;
  handlers.reserve(observers_->handlers.size());
  for (const auto& [identifier, handler] : observers_->handlers) {
    handlers.push_back(handler);
  }
  for (const auto& handler : handlers) {
    handler(change);
  }
}

WindowPlacementPreference AppPreferencesStore::windowPlacement() const {
  return current<AppPreferenceProperty::windowPlacement>();
}

void AppPreferencesStore::setWindowPlacement(WindowPlacementPreference value) {
  assign<AppPreferenceProperty::windowPlacement>(value);
}

HUDSizePreference AppPreferencesStore::hudSize() const {
  return current<AppPreferenceProperty::hudSize>();
}

void AppPreferencesStore::setHUDSize(HUDSizePreference value) {
  assign<AppPreferenceProperty::hudSize>(value);
}

ActivationModifierPreference AppPreferencesStore::activationModifier() const {
  return current<AppPreferenceProperty::activationModifier>();
}

void AppPreferencesStore::setActivationModifier(ActivationModifierPreference value) {
  assign<AppPreferenceProperty::activationModifier>(value);
}

HUDActivationGesturePreference AppPreferencesStore::hudActivationGesture() const {
  return current<AppPreferenceProperty::hudActivationGesture>();
}

void AppPreferencesStore::setHUDActivationGesture(HUDActivationGesturePreference value) {
  assign<AppPreferenceProperty::hudActivationGesture>(value);
}

HUDThemePreference AppPreferencesStore::hudTheme() const {
  return current<AppPreferenceProperty::hudTheme>();
}

void AppPreferencesStore::setHUDTheme(HUDThemePreference value) {
  assign<AppPreferenceProperty::hudTheme>(value);
}

HUDOpacityPreference AppPreferencesStore::hudOpacity() const {
  return current<AppPreferenceProperty::hudOpacity>();
}

void AppPreferencesStore::setHUDOpacity(HUDOpacityPreference value) {
  assign<AppPreferenceProperty::hudOpacity>(value);
}

bool AppPreferencesStore::shortcutAnimationEnabled() const {
  return current<AppPreferenceProperty::shortcutAnimationEnabled>();
}

void AppPreferencesStore::setShortcutAnimationEnabled(bool value) {
  assign<AppPreferenceProperty::shortcutAnimationEnabled>(value);
}

ShortcutAnimationDisplayPreference AppPreferencesStore::shortcutAnimationDisplay() const {
  return current<AppPreferenceProperty::shortcutAnimationDisplay>();
}

void AppPreferencesStore::setShortcutAnimationDisplay(ShortcutAnimationDisplayPreference value) {
  assign<AppPreferenceProperty::shortcutAnimationDisplay>(value);
}

bool AppPreferencesStore::shortcutHidesFrontmostApplication() const {
  return current<AppPreferenceProperty::shortcutHidesFrontmostApplication>();
}

void AppPreferencesStore::setShortcutHidesFrontmostApplication(bool value) {
  assign<AppPreferenceProperty::shortcutHidesFrontmostApplication>(value);
}

AppPreferenceObservation AppPreferencesStore::observe(Handler handler) {
  const auto identifier = observers_->nextIdentifier++;
  observers_->handlers.emplace(identifier, std::move(handler));
  return AppPreferenceObservation(
      [observers = std::weak_ptr<ObserverList>(observers_), identifier] {
        if (const auto list = observers.lock()) {
          list->handlers.erase(identifier);
        }
      });
}

void AppPreferencesStore::migrateHUDSize() {
  const auto version = storage_.integer(kHUDSizeVersionKey);
  if (version >= kCurrentHUDSizeVersion) {
    return;
  }
  persistHUDSize(sizeFromOlderScale(storage_.string(kHUDSizeKey)), version);
}

void AppPreferencesStore::retryHUDSizeMigration(HUDSizePreference size) {
  if (*migratedHUDSizeFallback_ == size) {
    return;
  }
  migratedHUDSizeFallback_ = size;
  if (persistHUDSize(size, storage_.integer(kHUDSizeVersionKey))) {
    migratedHUDSizeFallback_.reset();
  }
  notify(AppPreferenceChange::hudSize(size));
}

bool AppPreferencesStore::persistHUDSize(HUDSizePreference size, std::int64_t previousVersion) {
  if (!storage_.setVerified(kHUDSizeKey, PropertyListValue(rawValue(size)))) {
    migratedHUDSizeFallback_ = size;
    if (migrationFailureReporter_) {
      migrationFailureReporter_(std::string(kSizeValueNotPersisted));
    }
    return false;
  }
  if (storage_.setVerified(kHUDSizeVersionKey, PropertyListValue(kCurrentHUDSizeVersion))) {
    return true;
  }
  // A version without its value would skip the migration next launch, so put the old one back.
  storage_.set(kHUDSizeVersionKey, PropertyListValue(previousVersion));
  migratedHUDSizeFallback_ = size;
  if (migrationFailureReporter_) {
    migrationFailureReporter_(std::string(kSizeVersionNotPersisted));
  }
  return false;
}

std::vector<std::pair<std::string, PropertyListValue>> AppPreferencesStore::rawValues() const {
  std::vector<std::pair<std::string, PropertyListValue>> values;
  values.reserve(kAppPreferenceCount);
  forEachAppPreference([&](auto property) {
    constexpr auto P = decltype(property)::value;
    values.emplace_back(appPreference<P>().name, appPreference<P>().stored(current<P>()));
  });
  return values;
}

Expected<bool, std::string> AppPreferencesStore::setRaw(std::string_view property,
                                                        std::string_view rawText) {
  std::optional<Expected<bool, std::string>> outcome;
  forEachAppPreference([&](auto candidate) {
    constexpr auto P = decltype(candidate)::value;
    const auto& entry = appPreference<P>();
    if (entry.name != property) {
      return;
    }
    const auto parsed = entry.parse(rawText);
    if (!parsed) {
      outcome = Unexpected{std::string(entry.name) + " " + entry.expectation()};
      return;
    }
    const bool changes = current<P>() != *parsed;
    assign<P>(*parsed);
    outcome = changes;
  });
  if (!outcome) {
    return Unexpected{"unknown preference \"" + std::string(property) + "\""};
  }
  return *outcome;
}

} // namespace quenby
