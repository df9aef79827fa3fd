#pragma once

#include "base/Expected.hpp"
#include "base/KeyValueStore.hpp"
#include "base/Logger.hpp"
#include "base/PropertyListValue.hpp"
#include "data/AppPreferencesProviding.hpp"

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quenby {

/// The typed front over the user defaults' "settings." keys. Malformed stored values are never
/// errors: each reads as its preference's default. Construction migrates the HUD size from the
/// older scale once; when that cannot be persisted, the migrated size is kept in memory for the
/// rest of the run. Main thread only; the storage must outlive the store.
class AppPreferencesStore final : public AppPreferencesProviding {
public:
  using MigrationFailureReporter = std::function<void(const std::string&)>;

  /// The keys of the preferences that code outside the store reaches directly; a new preference
  /// needs none, its key being `appPreference<P>().key`.
  static constexpr std::string_view kWindowPlacementKey =
      appPreference<AppPreferenceProperty::windowPlacement>().key;
  static constexpr std::string_view kHUDSizeKey =
      appPreference<AppPreferenceProperty::hudSize>().key;
  static constexpr std::string_view kActivationModifierKey =
      appPreference<AppPreferenceProperty::activationModifier>().key;
  static constexpr std::string_view kHUDActivationGestureKey =
      appPreference<AppPreferenceProperty::hudActivationGesture>().key;
  static constexpr std::string_view kHUDThemeKey =
      appPreference<AppPreferenceProperty::hudTheme>().key;
  static constexpr std::string_view kHUDOpacityKey =
      appPreference<AppPreferenceProperty::hudOpacity>().key;
  static constexpr std::string_view kShortcutAnimationEnabledKey =
      appPreference<AppPreferenceProperty::shortcutAnimationEnabled>().key;
  static constexpr std::string_view kShortcutAnimationDisplayKey =
      appPreference<AppPreferenceProperty::shortcutAnimationDisplay>().key;
  static constexpr std::string_view kShortcutHidesFrontmostApplicationKey =
      appPreference<AppPreferenceProperty::shortcutHidesFrontmostApplication>().key;
  static constexpr std::string_view kHUDSizeVersionKey = "settings.hudSize.version";
  /// The scale that "settings.hudSize" holds once migrated; absent or lower means the older one.
  static constexpr std::int64_t kCurrentHUDSizeVersion = 2;

  AppPreferencesStore(KeyValueStore& storage, MigrationFailureReporter migrationFailureReporter);
  AppPreferencesStore(const AppPreferencesStore&) = delete;
  AppPreferencesStore& operator=(const AppPreferencesStore&) = delete;

  /// The production reporter: each message becomes an error line in category "Preferences".
  /// `logger` must outlive the store.
  [[nodiscard]] static MigrationFailureReporter loggingReporter(Logger& logger);

  [[nodiscard]] WindowPlacementPreference windowPlacement() const override;
  void setWindowPlacement(WindowPlacementPreference value) override;
  [[nodiscard]] HUDSizePreference hudSize() const override;
  void setHUDSize(HUDSizePreference value) override;
  [[nodiscard]] ActivationModifierPreference activationModifier() const override;
  void setActivationModifier(ActivationModifierPreference value) override;
  [[nodiscard]] HUDActivationGesturePreference hudActivationGesture() const override;
  void setHUDActivationGesture(HUDActivationGesturePreference value) override;
  [[nodiscard]] HUDThemePreference hudTheme() const override;
  void setHUDTheme(HUDThemePreference value) override;
  [[nodiscard]] HUDOpacityPreference hudOpacity() const override;
  void setHUDOpacity(HUDOpacityPreference value) override;
  [[nodiscard]] bool shortcutAnimationEnabled() const override;
  void setShortcutAnimationEnabled(bool value) override;
  [[nodiscard]] ShortcutAnimationDisplayPreference shortcutAnimationDisplay() const override;
  void setShortcutAnimationDisplay(ShortcutAnimationDisplayPreference value) override;
  [[nodiscard]] bool shortcutHidesFrontmostApplication() const override;
  void setShortcutHidesFrontmostApplication(bool value) override;

  [[nodiscard]] AppPreferenceObservation observe(Handler handler) override;

  /// The HUD size that overrides the stored one because the migrated size could not be
  /// persisted; none once a later write of the size has taken.
  [[nodiscard]] std::optional<HUDSizePreference> migratedHUDSizeFallback() const {
    return migratedHUDSizeFallback_;
  }

  /// Every property by name, in table order, as its raw value: a string, an integer for the
  /// opacity, a Boolean for a switch.
  [[nodiscard]] std::vector<std::pair<std::string, PropertyListValue>> rawValues() const;
  /// Sets the property named `property` from its raw value written as text ("large", "80",
  /// "true") through the typed setter. True when the value changed; an error message for an
  /// unknown property or a text that is not one of its raw values.
  Expected<bool, std::string> setRaw(std::string_view property, std::string_view rawText);

private:
  struct ObserverList {
    std::uint64_t nextIdentifier = 0;
    std::map<std::uint64_t, Handler> handlers;
  };

  /// What `P` reads as: the stored value, or the HUD size kept in memory while it is unpersisted.
  template <AppPreferenceProperty P> [[nodiscard]] AppPreferenceValue<P> current() const;
  template <AppPreferenceProperty P> [[nodiscard]] AppPreferenceValue<P> stored() const;
  /// Writes and notifies unless `value` is what `P` reads as now.
  template <AppPreferenceProperty P> void assign(AppPreferenceValue<P> value);
  void notify(AppPreferenceChange change);

  void migrateHUDSize();
  /// A new size while the migrated one is unpersisted: the write retries the whole migration.
  void retryHUDSizeMigration(HUDSizePreference size);
  /// Writes `size` and then the current scale version, reading each back; on failure keeps `size`
  /// as the fallback, restores `previousVersion` and reports. True when both writes took.
  bool persistHUDSize(HUDSizePreference size, std::int64_t previousVersion);

  KeyValueStore& storage_;
  MigrationFailureReporter migrationFailureReporter_;
  std::optional<HUDSizePreference> migratedHUDSizeFallback_;
  // Shared so that an observation outliving the store can see that the list is gone.
  std::shared_ptr<ObserverList> observers_ = std::make_shared<ObserverList>();
};

} // namespace quenby
