#pragma once

#include "data/AppPreferenceTable.hpp"

#include <cstddef>
#include <optional>
#include <tuple>
#include <type_traits>
#include <utility>
#include <variant>

namespace quenby {

namespace detail {

template <typename Variant, typename T> struct WithAlternative;
template <typename... Held, typename T> struct WithAlternative<std::variant<Held...>, T> {
  using type = std::conditional_t<(std::is_same_v<Held, T> || ...), std::variant<Held...>,
                                  std::variant<Held..., T>>;
};

/// Adds the value type of every entry from `Index` on to `Variant`, each once.
template <std::size_t Index, typename Variant> struct AppPreferenceValueVariant {
  using type = typename AppPreferenceValueVariant<
      Index + 1,
      typename WithAlternative<
          Variant, AppPreferenceValue<static_cast<AppPreferenceProperty>(Index)>>::type>::type;
};
template <typename Variant> struct AppPreferenceValueVariant<kAppPreferenceCount, Variant> {
  using type = Variant;
};

} // namespace detail

/// One preference that changed, with its new value. Build it with the named constructors so that
/// the property and the kind of value always agree; three bytes, passed by value.
struct AppPreferenceChange {
  /// Every type a preference holds, each once.
  using Value = detail::AppPreferenceValueVariant<
      1, std::variant<AppPreferenceValue<static_cast<AppPreferenceProperty>(0)>>>::type;

  AppPreferenceProperty property;
  Value value;

  /// The change of `P` to `value`; the named constructors below spell it for each preference.
  template <AppPreferenceProperty P>
  [[nodiscard]] static AppPreferenceChange to(AppPreferenceValue<P> value) {
    return {P, value};
  }

  [[nodiscard]] static AppPreferenceChange windowPlacement(WindowPlacementPreference v) {
    return to<AppPreferenceProperty::windowPlacement>(v);
  }
  [[nodiscard]] static AppPreferenceChange hudSize(HUDSizePreference v) {
    return to<AppPreferenceProperty::hudSize>(v);
  }
  [[nodiscard]] static AppPreferenceChange activationModifier(ActivationModifierPreference v) {
    return to<AppPreferenceProperty::activationModifier>(v);
  }
  [[nodiscard]] static AppPreferenceChange hudActivationGesture(HUDActivationGesturePreference v) {
    return to<AppPreferenceProperty::hudActivationGesture>(v);
  }
  [[nodiscard]] static AppPreferenceChange hudTheme(HUDThemePreference v) {
    return to<AppPreferenceProperty::hudTheme>(v);
  }
  [[nodiscard]] static AppPreferenceChange hudOpacity(HUDOpacityPreference v) {
    return to<AppPreferenceProperty::hudOpacity>(v);
  }
  [[nodiscard]] static AppPreferenceChange shortcutAnimationEnabled(bool v) {
    return to<AppPreferenceProperty::shortcutAnimationEnabled>(v);
  }
  [[nodiscard]] static AppPreferenceChange
  shortcutAnimationDisplay(ShortcutAnimationDisplayPreference v) {
    return to<AppPreferenceProperty::shortcutAnimationDisplay>(v);
  }
  [[nodiscard]] static AppPreferenceChange shortcutHidesFrontmostApplication(bool v) {
    return to<AppPreferenceProperty::shortcutHidesFrontmostApplication>(v);
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
