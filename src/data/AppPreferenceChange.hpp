#pragma once

#include "data/AppPreferences.hpp"

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>
#include <variant>

namespace quenby {

/// The nine preferences, in the order the settings page and the state dump list them.
enum class AppPreferenceProperty : std::uint8_t {
  windowPlacement,
  hudSize,
  activationModifier,
  hudActivationGesture,
  hudTheme,
  hudOpacity,
  shortcutAnimationEnabled,
  shortcutAnimationDisplay,
  shortcutHidesFrontmostApplication,
};

inline constexpr std::array kAllAppPreferenceProperties{
    AppPreferenceProperty::windowPlacement,
    AppPreferenceProperty::hudSize,
    AppPreferenceProperty::activationModifier,
    AppPreferenceProperty::hudActivationGesture,
    AppPreferenceProperty::hudTheme,
    AppPreferenceProperty::hudOpacity,
    AppPreferenceProperty::shortcutAnimationEnabled,
    AppPreferenceProperty::shortcutAnimationDisplay,
    AppPreferenceProperty::shortcutHidesFrontmostApplication,
};

/// The property's name as written in scenarios and state dumps ("hudSize").
[[nodiscard]] std::string_view propertyName(AppPreferenceProperty property);
[[nodiscard]] std::optional<AppPreferenceProperty>
appPreferencePropertyNamed(std::string_view name);

/// One preference that changed, with its new value. Build it with the named constructors so that
/// the property and the kind of value always agree; three bytes, passed by value.
struct AppPreferenceChange {
  using Value =
      std::variant<WindowPlacementPreference, HUDSizePreference, ActivationModifierPreference,
                   HUDActivationGesturePreference, HUDThemePreference, HUDOpacityPreference, bool,
                   ShortcutAnimationDisplayPreference>;

  AppPreferenceProperty property;
  Value value;

  [[nodiscard]] static AppPreferenceChange windowPlacement(WindowPlacementPreference v) {
    return {AppPreferenceProperty::windowPlacement, v};
  }
  [[nodiscard]] static AppPreferenceChange hudSize(HUDSizePreference v) {
    return {AppPreferenceProperty::hudSize, v};
  }
  [[nodiscard]] static AppPreferenceChange activationModifier(ActivationModifierPreference v) {
    return {AppPreferenceProperty::activationModifier, v};
  }
  [[nodiscard]] static AppPreferenceChange hudActivationGesture(HUDActivationGesturePreference v) {
    return {AppPreferenceProperty::hudActivationGesture, v};
  }
  [[nodiscard]] static AppPreferenceChange hudTheme(HUDThemePreference v) {
    return {AppPreferenceProperty::hudTheme, v};
  }
  [[nodiscard]] static AppPreferenceChange hudOpacity(HUDOpacityPreference v) {
    return {AppPreferenceProperty::hudOpacity, v};
  }
  [[nodiscard]] static AppPreferenceChange shortcutAnimationEnabled(bool v) {
    return {AppPreferenceProperty::shortcutAnimationEnabled, v};
  }
  [[nodiscard]] static AppPreferenceChange
  shortcutAnimationDisplay(ShortcutAnimationDisplayPreference v) {
    return {AppPreferenceProperty::shortcutAnimationDisplay, v};
  }
  [[nodiscard]] static AppPreferenceChange shortcutHidesFrontmostApplication(bool v) {
    return {AppPreferenceProperty::shortcutHidesFrontmostApplication, v};
  }

  /// The new value when this change is to `expected`; none for a change to another property.
  template <typename T>
  [[nodiscard]] std::optional<T> valueIf(AppPreferenceProperty expected) const {
    const auto* held = std::get_if<T>(&value);
    if (property != expected || held == nullptr) {
      return std::nullopt;
    }
    return *held;
  }

  friend bool operator==(const AppPreferenceChange&, const AppPreferenceChange&) = default;
};

} // namespace quenby
