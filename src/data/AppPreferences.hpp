#pragma once

#include "base/PropertyListValue.hpp"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quenby {

/// Which screen a window appears on.
enum class WindowPlacementPreference : std::uint8_t { mainDisplay, displayUnderMouse };
/// Which screen the shortcut animation plays on; the cases mean what `WindowPlacementPreference`'s
/// do.
enum class ShortcutAnimationDisplayPreference : std::uint8_t { mainDisplay, displayUnderMouse };
enum class HUDSizePreference : std::uint8_t { small, standard, large };
enum class HUDThemePreference : std::uint8_t { light, dark, system };
/// The HUD's opacity in percent; the raw values are integers.
enum class HUDOpacityPreference : std::uint8_t { sixty, seventy, eighty, ninety, oneHundred };
enum class HUDActivationGesturePreference : std::uint8_t { doubleTap, longPress, both };
/// The modifier of every shortcut and of the HUD gesture.
enum class ActivationModifierPreference : std::uint8_t { option, control };

/// The cases of a preference enumeration in order, their raw values (what the defaults hold),
/// and `fallback`: the case that an absent, mistyped or unrecognised stored value reads as.
template <typename T> struct PreferenceCases;

template <> struct PreferenceCases<WindowPlacementPreference> {
  using T = WindowPlacementPreference;
  using Raw = std::string_view;
  static constexpr std::array all{T::mainDisplay, T::displayUnderMouse};
  static constexpr std::array<Raw, 2> rawValues{"mainDisplay", "displayUnderMouse"};
  static constexpr T fallback = T::mainDisplay;
};

template <> struct PreferenceCases<ShortcutAnimationDisplayPreference> {
  using T = ShortcutAnimationDisplayPreference;
  using Raw = std::string_view;
  static constexpr std::array all{T::mainDisplay, T::displayUnderMouse};
  static constexpr std::array<Raw, 2> rawValues{"mainDisplay", "displayUnderMouse"};
  static constexpr T fallback = T::mainDisplay;
};

template <> struct PreferenceCases<HUDSizePreference> {
  using T = HUDSizePreference;
  using Raw = std::string_view;
  static constexpr std::array all{T::small, T::standard, T::large};
  static constexpr std::array<Raw, 3> rawValues{"small", "standard", "large"};
  // The middle size, unlike the other three-case preferences.
  static constexpr T fallback = T::standard;
};

template <> struct PreferenceCases<HUDThemePreference> {
  using T = HUDThemePreference;
  using Raw = std::string_view;
  static constexpr std::array all{T::light, T::dark, T::system};
  static constexpr std::array<Raw, 3> rawValues{"light", "dark", "system"};
  static constexpr T fallback = T::system;
};

template <> struct PreferenceCases<HUDOpacityPreference> {
  using T = HUDOpacityPreference;
  using Raw = std::int64_t;
  static constexpr std::array all{T::sixty, T::seventy, T::eighty, T::ninety, T::oneHundred};
  static constexpr std::array<Raw, 5> rawValues{60, 70, 80, 90, 100};
  static constexpr T fallback = T::oneHundred;
};

template <> struct PreferenceCases<HUDActivationGesturePreference> {
  using T = HUDActivationGesturePreference;
  using Raw = std::string_view;
  static constexpr std::array all{T::doubleTap, T::longPress, T::both};
  static constexpr std::array<Raw, 3> rawValues{"doubleTap", "longPress", "both"};
  static constexpr T fallback = T::both;
};

template <> struct PreferenceCases<ActivationModifierPreference> {
  using T = ActivationModifierPreference;
  using Raw = std::string_view;
  static constexpr std::array all{T::option, T::control};
  static constexpr std::array<Raw, 2> rawValues{"option", "control"};
  static constexpr T fallback = T::option;
};

/// Every case of `T`, in the order the settings page lists them.
template <typename T> [[nodiscard]] constexpr const auto& allCases() {
  return PreferenceCases<T>::all;
}

/// The value written to the defaults for `value`: a string, or an integer for the opacity.
template <typename T> [[nodiscard]] constexpr typename PreferenceCases<T>::Raw rawValue(T value) {
  return PreferenceCases<T>::rawValues[static_cast<std::size_t>(value)];
}

/// The case whose raw value is exactly `raw`; none for anything else.
template <typename T>
[[nodiscard]] constexpr std::optional<T> fromRawValue(typename PreferenceCases<T>::Raw raw) {
  for (std::size_t index = 0; index < PreferenceCases<T>::rawValues.size(); ++index) {
    if (PreferenceCases<T>::rawValues[index] == raw) {
      return PreferenceCases<T>::all[index];
    }
  }
  return std::nullopt;
}

/// How a stored object reads. String preferences need a string that is exactly one raw value;
/// the opacity needs an integer (never a Boolean or a real, even 80.0) that is one raw value.
/// Anything else, or absence, reads as `PreferenceCases<T>::fallback`.
template <typename T> [[nodiscard]] T readStoredPreference(const PropertyListValue* stored);

/// "small, standard, large": the raw values for a message.
template <typename T> [[nodiscard]] std::string rawValueList();

} // namespace quenby
