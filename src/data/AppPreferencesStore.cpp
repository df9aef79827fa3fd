#include "data/AppPreferencesStore.hpp"

#include <charconv>
#include <type_traits>

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

template <typename T>
Expected<T, std::string> parseRawText(AppPreferenceProperty property, std::string_view text) {
  std::optional<T> parsed;
  if constexpr (std::is_same_v<typename PreferenceCases<T>::Raw, std::string_view>) {
    parsed = fromRawValue<T>(text);
  } else {
    std::int64_t number = 0;
    const auto* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    if (error == std::errc{} && stop == end) {
      parsed = fromRawValue<T>(number);
    }
  }
  if (!parsed) {
    return Unexpected{std::string(propertyName(property)) + " must be one of " + rawValueList<T>()};
  }
  return *parsed;
}

template <>
Expected<bool, std::string> parseRawText<bool>(AppPreferenceProperty property,
                                               std::string_view text) {
  if (text == "true" || text == "false") {
    return text == "true";
  }
  return Unexpected{std::string(propertyName(property)) + " must be true or false"};
}

template <typename T>
Expected<bool, std::string>
applyRawText(AppPreferencesStore& store, AppPreferenceProperty property, std::string_view text,
             T (AppPreferencesStore::*getter)() const, void (AppPreferencesStore::*setter)(T)) {
  const auto parsed = parseRawText<T>(property, text);
  if (!parsed) {
    return Unexpected{parsed.error()};
  }
  const bool changes = (store.*getter)() != *parsed;
  (store.*setter)(*parsed);
  return changes;
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

template <typename T> T AppPreferencesStore::read(std::string_view key) const {
  const auto object = storage_.object(key);
  return readStoredPreference<T>(object ? &*object : nullptr);
}

bool AppPreferencesStore::readBoolean(std::string_view key, bool fallback) const {
  const auto object = storage_.object(key);
  if (!object || object->boolean() == nullptr) {
    return fallback;
  }
  return *object->boolean();
}

template <typename T>
void AppPreferencesStore::write(std::string_view key, T current, T value,
                                AppPreferenceChange change) {
  if (current == value) {
    return;
  }
  if constexpr (std::is_same_v<T, bool>) {
    storage_.set(key, PropertyListValue(value));
  } else {
    storage_.set(key, PropertyListValue(rawValue(value)));
  }
  notify(change);
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
  return read<WindowPlacementPreference>(kWindowPlacementKey);
}

void AppPreferencesStore::setWindowPlacement(WindowPlacementPreference value) {
  write(kWindowPlacementKey, windowPlacement(), value, AppPreferenceChange::windowPlacement(value));
}

HUDSizePreference AppPreferencesStore::hudSize() const {
  if (migratedHUDSizeFallback_) {
    return *migratedHUDSizeFallback_;
  }
  return read<HUDSizePreference>(kHUDSizeKey);
}

void AppPreferencesStore::setHUDSize(HUDSizePreference value) {
  if (!migratedHUDSizeFallback_) {
    write(kHUDSizeKey, read<HUDSizePreference>(kHUDSizeKey), value,
          AppPreferenceChange::hudSize(value));
    return;
  }
  if (*migratedHUDSizeFallback_ == value) {
    return;
  }
  // The size is still unpersisted, so this write retries the whole migration step.
  migratedHUDSizeFallback_ = value;
  if (persistHUDSize(value, storage_.integer(kHUDSizeVersionKey))) {
    migratedHUDSizeFallback_.reset();
  }
  notify(AppPreferenceChange::hudSize(value));
}

ActivationModifierPreference AppPreferencesStore::activationModifier() const {
  return read<ActivationModifierPreference>(kActivationModifierKey);
}

void AppPreferencesStore::setActivationModifier(ActivationModifierPreference value) {
  write(kActivationModifierKey, activationModifier(), value,
        AppPreferenceChange::activationModifier(value));
}

HUDActivationGesturePreference AppPreferencesStore::hudActivationGesture() const {
  return read<HUDActivationGesturePreference>(kHUDActivationGestureKey);
}

void AppPreferencesStore::setHUDActivationGesture(HUDActivationGesturePreference value) {
  write(kHUDActivationGestureKey, hudActivationGesture(), value,
        AppPreferenceChange::hudActivationGesture(value));
}

HUDThemePreference AppPreferencesStore::hudTheme() const {
  return read<HUDThemePreference>(kHUDThemeKey);
}

void AppPreferencesStore::setHUDTheme(HUDThemePreference value) {
  write(kHUDThemeKey, hudTheme(), value, AppPreferenceChange::hudTheme(value));
}

HUDOpacityPreference AppPreferencesStore::hudOpacity() const {
  return read<HUDOpacityPreference>(kHUDOpacityKey);
}

void AppPreferencesStore::setHUDOpacity(HUDOpacityPreference value) {
  write(kHUDOpacityKey, hudOpacity(), value, AppPreferenceChange::hudOpacity(value));
}

bool AppPreferencesStore::shortcutAnimationEnabled() const {
  return readBoolean(kShortcutAnimationEnabledKey, true);
}

void AppPreferencesStore::setShortcutAnimationEnabled(bool value) {
  write(kShortcutAnimationEnabledKey, shortcutAnimationEnabled(), value,
        AppPreferenceChange::shortcutAnimationEnabled(value));
}

ShortcutAnimationDisplayPreference AppPreferencesStore::shortcutAnimationDisplay() const {
  return read<ShortcutAnimationDisplayPreference>(kShortcutAnimationDisplayKey);
}

void AppPreferencesStore::setShortcutAnimationDisplay(ShortcutAnimationDisplayPreference value) {
  write(kShortcutAnimationDisplayKey, shortcutAnimationDisplay(), value,
        AppPreferenceChange::shortcutAnimationDisplay(value));
}

bool AppPreferencesStore::shortcutHidesFrontmostApplication() const {
  return readBoolean(kShortcutHidesFrontmostApplicationKey, false);
}

void AppPreferencesStore::setShortcutHidesFrontmostApplication(bool value) {
  write(kShortcutHidesFrontmostApplicationKey, shortcutHidesFrontmostApplication(), value,
        AppPreferenceChange::shortcutHidesFrontmostApplication(value));
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

bool AppPreferencesStore::persistHUDSize(HUDSizePreference size, std::int64_t previousVersion) {
  const auto written = rawValue(size);
  storage_.set(kHUDSizeKey, PropertyListValue(written));
  if (storage_.string(kHUDSizeKey) != written) {
    migratedHUDSizeFallback_ = size;
    if (migrationFailureReporter_) {
      migrationFailureReporter_(std::string(kSizeValueNotPersisted));
    }
    return false;
  }
  storage_.set(kHUDSizeVersionKey, PropertyListValue(kCurrentHUDSizeVersion));
  if (storage_.integer(kHUDSizeVersionKey) == kCurrentHUDSizeVersion) {
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
  return {
      {"windowPlacement", rawValue(windowPlacement())},
      {"hudSize", rawValue(hudSize())},
      {"activationModifier", rawValue(activationModifier())},
      {"hudActivationGesture", rawValue(hudActivationGesture())},
      {"hudTheme", rawValue(hudTheme())},
      {"hudOpacity", rawValue(hudOpacity())},
      {"shortcutAnimationEnabled", shortcutAnimationEnabled()},
      {"shortcutAnimationDisplay", rawValue(shortcutAnimationDisplay())},
      {"shortcutHidesFrontmostApplication", shortcutHidesFrontmostApplication()},
  };
}

Expected<bool, std::string> AppPreferencesStore::setRaw(std::string_view property,
                                                        std::string_view rawText) {
  const auto named = appPreferencePropertyNamed(property);
  if (!named) {
    return Unexpected{"unknown preference \"" + std::string(property) + "\""};
  }
  using S = AppPreferencesStore;
  switch (*named) {
  case AppPreferenceProperty::windowPlacement:
    return applyRawText(*this, *named, rawText, &S::windowPlacement, &S::setWindowPlacement);
  case AppPreferenceProperty::hudSize:
    return applyRawText(*this, *named, rawText, &S::hudSize, &S::setHUDSize);
  case AppPreferenceProperty::activationModifier:
    return applyRawText(*this, *named, rawText, &S::activationModifier, &S::setActivationModifier);
  case AppPreferenceProperty::hudActivationGesture:
    return applyRawText(*this, *named, rawText, &S::hudActivationGesture,
                        &S::setHUDActivationGesture);
  case AppPreferenceProperty::hudTheme:
    return applyRawText(*this, *named, rawText, &S::hudTheme, &S::setHUDTheme);
  case AppPreferenceProperty::hudOpacity:
    return applyRawText(*this, *named, rawText, &S::hudOpacity, &S::setHUDOpacity);
  case AppPreferenceProperty::shortcutAnimationEnabled:
    return applyRawText(*this, *named, rawText, &S::shortcutAnimationEnabled,
                        &S::setShortcutAnimationEnabled);
  case AppPreferenceProperty::shortcutAnimationDisplay:
    return applyRawText(*this, *named, rawText, &S::shortcutAnimationDisplay,
                        &S::setShortcutAnimationDisplay);
  case AppPreferenceProperty::shortcutHidesFrontmostApplication:
    return applyRawText(*this, *named, rawText, &S::shortcutHidesFrontmostApplication,
                        &S::setShortcutHidesFrontmostApplication);
  }
  return Unexpected{"unknown preference \"" + std::string(property) + "\""};
}

} // namespace quenby
