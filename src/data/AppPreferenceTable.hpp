#pragma once

#include "base/PropertyListValue.hpp"
#include "data/AppPreferences.hpp"

#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>

namespace quenby {

/// The preferences, in the order the settings page and the state dump list them. Each names the
/// entry at its own position in `kAppPreferenceTable`; the table refuses to compile otherwise.
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

/// A preference holding one case of the enumeration `T`, stored as that case's raw value: a
/// string, or an integer when `Raw` is one. `rawValues[i]` belongs to the case whose underlying
/// value is `i`, so the cases count from zero in the order the settings page lists them.
template <typename T, typename Raw, std::size_t N> struct EnumeratedPreference {
  using Value = T;
  using RawValue = Raw;

  AppPreferenceProperty property;
  /// As scenarios and the state dump write it ("hudSize").
  std::string_view name;
  /// The user-defaults key.
  std::string_view key;
  std::array<Raw, N> rawValues;
  /// What an absent, mistyped or unrecognised stored value reads as.
  T fallback;

  [[nodiscard]] constexpr Raw raw(T value) const {
    return rawValues[static_cast<std::size_t>(value)];
  }

  /// The case whose raw value is exactly `raw`; none for anything else.
  [[nodiscard]] constexpr std::optional<T> fromRaw(Raw raw) const {
    for (std::size_t index = 0; index < N; ++index) {
      if (rawValues[index] == raw) {
        return static_cast<T>(index);
      }
    }
    return std::nullopt;
  }

  /// A string preference needs a string that is exactly one raw value; an integer one needs the
  /// integer kind (never a Boolean or a real, even 80.0) holding one raw value.
  [[nodiscard]] T read(const PropertyListValue* stored) const {
    if (stored == nullptr) {
      return fallback;
    }
    if constexpr (std::is_same_v<Raw, std::string_view>) {
      if (const auto* string = stored->string()) {
        return fromRaw(*string).value_or(fallback);
      }
    } else {
      if (const auto* integer = stored->integer()) {
        return fromRaw(*integer).value_or(fallback);
      }
    }
    return fallback;
  }

  /// What the defaults hold for `value`, and what the state dump shows.
  [[nodiscard]] PropertyListValue stored(T value) const { return PropertyListValue(raw(value)); }

  /// `text` as a scenario writes a raw value ("large", "80"); nothing around it is tolerated.
  [[nodiscard]] std::optional<T> parse(std::string_view text) const {
    if constexpr (std::is_same_v<Raw, std::string_view>) {
      return fromRaw(text);
    } else {
      Raw number = 0;
      const auto* end = text.data() + text.size();
      const auto [stop, error] = std::from_chars(text.data(), end, number);
      if (error != std::errc{} || stop != end) {
        return std::nullopt;
      }
      return fromRaw(number);
    }
  }

  /// "must be one of small, standard, large", for a refused text.
  [[nodiscard]] std::string expectation() const {
    std::string list = "must be one of ";
    for (std::size_t index = 0; index < N; ++index) {
      if (index > 0) {
        list += ", ";
      }
      if constexpr (std::is_same_v<Raw, std::string_view>) {
        list += rawValues[index];
      } else {
        list += std::to_string(rawValues[index]);
      }
    }
    return list;
  }
};

/// A preference stored as a Boolean. Only the Boolean kind counts: a stored 0 or 1 reads as
/// `fallback`.
struct SwitchPreference {
  using Value = bool;

  AppPreferenceProperty property;
  std::string_view name;
  std::string_view key;
  bool fallback;

  [[nodiscard]] bool read(const PropertyListValue* stored) const {
    const bool* held = stored == nullptr ? nullptr : stored->boolean();
    return held == nullptr ? fallback : *held;
  }
  [[nodiscard]] static PropertyListValue stored(bool value) { return value; }
  [[nodiscard]] static std::optional<bool> parse(std::string_view text) {
    if (text == "true" || text == "false") {
      return text == "true";
    }
    return std::nullopt;
  }
  [[nodiscard]] static std::string expectation() { return "must be true or false"; }
};

template <typename T, std::size_t N>
constexpr EnumeratedPreference<T, std::string_view, N>
enumeratedPreference(AppPreferenceProperty property, std::string_view name, std::string_view key,
                     const std::string_view (&rawValues)[N], T fallback) {
  return {property, name, key, std::to_array(rawValues), fallback};
}

template <typename T, std::size_t N>
constexpr EnumeratedPreference<T, std::int64_t, N>
enumeratedPreference(AppPreferenceProperty property, std::string_view name, std::string_view key,
                     const std::int64_t (&rawValues)[N], T fallback) {
  return {property, name, key, std::to_array(rawValues), fallback};
}

/// Every preference: its name, its user-defaults key, its raw values and its default. The store
/// reads, writes, lists and parses each one from its entry alone.
inline constexpr std::tuple kAppPreferenceTable{
    enumeratedPreference(AppPreferenceProperty::windowPlacement, "windowPlacement",
                         "settings.windowPlacement", {"mainDisplay", "displayUnderMouse"},
                         WindowPlacementPreference::mainDisplay),
    // The middle size, unlike the other three-case preferences.
    enumeratedPreference(AppPreferenceProperty::hudSize, "hudSize", "settings.hudSize",
                         {"small", "standard", "large"}, HUDSizePreference::standard),
    enumeratedPreference(AppPreferenceProperty::activationModifier, "activationModifier",
                         "settings.activationModifier", {"option", "control"},
                         ActivationModifierPreference::option),
    enumeratedPreference(AppPreferenceProperty::hudActivationGesture, "hudActivationGesture",
                         "settings.hudActivationGesture", {"doubleTap", "longPress", "both"},
                         HUDActivationGesturePreference::both),
    enumeratedPreference(AppPreferenceProperty::hudTheme, "hudTheme", "settings.hudTheme",
                         {"light", "dark", "system"}, HUDThemePreference::system),
    enumeratedPreference(AppPreferenceProperty::hudOpacity, "hudOpacity", "settings.hudOpacity",
                         {60, 70, 80, 90, 100}, HUDOpacityPreference::oneHundred),
    SwitchPreference{AppPreferenceProperty::shortcutAnimationEnabled, "shortcutAnimationEnabled",
                     "settings.shortcutAnimation.enabled", true},
    enumeratedPreference(AppPreferenceProperty::shortcutAnimationDisplay,
                         "shortcutAnimationDisplay", "settings.shortcutAnimation.display",
                         {"mainDisplay", "displayUnderMouse"},
                         ShortcutAnimationDisplayPreference::mainDisplay),
    SwitchPreference{AppPreferenceProperty::shortcutHidesFrontmostApplication,
                     "shortcutHidesFrontmostApplication",
                     "settings.shortcutHidesFrontmostApplication", false},
};

inline constexpr std::size_t kAppPreferenceCount = std::tuple_size_v<decltype(kAppPreferenceTable)>;

/// The entry of `P`.
template <AppPreferenceProperty P> [[nodiscard]] constexpr const auto& appPreference() {
  return std::get<static_cast<std::size_t>(P)>(kAppPreferenceTable);
}

/// What `P` holds: one of the enumerations, or `bool`.
template <AppPreferenceProperty P>
using AppPreferenceValue = typename std::remove_cvref_t<decltype(appPreference<P>())>::Value;

/// Calls `visit(std::integral_constant<AppPreferenceProperty, P>{})` for every preference `P`, in
/// table order, so that each call can name its entry and its value type at compile time.
template <typename Visitor> constexpr void forEachAppPreference(Visitor&& visit) {
  [&]<std::size_t... I>(std::index_sequence<I...>) {
    (visit(std::integral_constant<AppPreferenceProperty, static_cast<AppPreferenceProperty>(I)>{}),
     ...);
  }
  (std::make_index_sequence<kAppPreferenceCount>{});
}

inline constexpr auto kAllAppPreferenceProperties = [] {
  std::array<AppPreferenceProperty, kAppPreferenceCount> properties{};
  std::size_t index = 0;
  forEachAppPreference([&](auto property) {
    static_assert(appPreference<decltype(property)::value>().property == property,
                  "each entry must sit at its property's position");
    properties[index++] = property;
  });
  return properties;
}();

/// The property's name as written in scenarios and state dumps ("hudSize").
[[nodiscard]] constexpr std::string_view propertyName(AppPreferenceProperty property) {
  std::string_view name;
  forEachAppPreference([&](auto candidate) {
    if (candidate == property) {
      name = appPreference<decltype(candidate)::value>().name;
    }
  });
  return name;
}

[[nodiscard]] constexpr std::optional<AppPreferenceProperty>
appPreferencePropertyNamed(std::string_view name) {
  for (const auto property : kAllAppPreferenceProperties) {
    if (propertyName(property) == name) {
      return property;
    }
  }
  return std::nullopt;
}

namespace detail {

/// The position of the one enumerated entry holding `T`, or the table's size when none or several
/// do (the enumeration's raw values would then be ambiguous).
template <typename T, std::size_t... I>
constexpr std::size_t onlyEntryHolding(std::index_sequence<I...> /*positions*/) {
  constexpr std::array holds{std::is_same_v<
      typename std::tuple_element_t<I, std::remove_cvref_t<decltype(kAppPreferenceTable)>>::Value,
      T>...};
  std::size_t found = kAppPreferenceCount;
  std::size_t matches = 0;
  for (std::size_t index = 0; index < holds.size(); ++index) {
    if (holds[index]) {
      found = index;
      ++matches;
    }
  }
  return matches == 1 ? found : kAppPreferenceCount;
}

} // namespace detail

/// The entry of the one preference that holds enumeration `T`.
template <typename T> [[nodiscard]] constexpr const auto& preferenceHolding() {
  constexpr auto index =
      detail::onlyEntryHolding<T>(std::make_index_sequence<kAppPreferenceCount>{});
  static_assert(index < kAppPreferenceCount, "exactly one preference must hold this enumeration");
  return std::get<index>(kAppPreferenceTable);
}

/// The raw value type of enumeration `T`: `std::string_view`, or `std::int64_t` for the opacity.
template <typename T>
using PreferenceRawValue = typename std::remove_cvref_t<decltype(preferenceHolding<T>())>::RawValue;

template <typename T>
inline constexpr auto kAllPreferenceCases = [] {
  constexpr auto& entry = preferenceHolding<T>();
  std::array<T, entry.rawValues.size()> cases{};
  for (std::size_t index = 0; index < cases.size(); ++index) {
    cases[index] = static_cast<T>(index);
  }
  return cases;
}();

/// Every case of `T`, in the order the settings page lists them.
template <typename T> [[nodiscard]] constexpr const auto& allCases() {
  return kAllPreferenceCases<T>;
}

/// The value written to the defaults for `value`: a string, or an integer for the opacity.
template <typename T> [[nodiscard]] constexpr PreferenceRawValue<T> rawValue(T value) {
  return preferenceHolding<T>().raw(value);
}

/// The case whose raw value is exactly `raw`; none for anything else.
template <typename T>
[[nodiscard]] constexpr std::optional<T> fromRawValue(PreferenceRawValue<T> raw) {
  return preferenceHolding<T>().fromRaw(raw);
}

} // namespace quenby
