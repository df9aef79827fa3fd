#include "data/AppPreferences.hpp"

#include <type_traits>

namespace quenby {

template <typename T> T readStoredPreference(const PropertyListValue* stored) {
  using Raw = typename PreferenceCases<T>::Raw;
  if (stored == nullptr) {
    return PreferenceCases<T>::fallback;
  }
  if constexpr (std::is_same_v<Raw, std::string_view>) {
    if (const auto* string = stored->string()) {
      return fromRawValue<T>(*string).value_or(PreferenceCases<T>::fallback);
    }
  } else {
    // Only the integer kind qualifies: Booleans and reals are distinct kinds and never match.
    if (const auto* integer = stored->integer()) {
      return fromRawValue<T>(*integer).value_or(PreferenceCases<T>::fallback);
    }
  }
  return PreferenceCases<T>::fallback;
}

template <typename T> std::string rawValueList() {
  std::string list;
  for (const auto raw : PreferenceCases<T>::rawValues) {
    if (!list.empty()) {
      list += ", ";
    }
    if constexpr (std::is_same_v<typename PreferenceCases<T>::Raw, std::string_view>) {
      list += raw;
    } else {
      list += std::to_string(raw);
    }
  }
  return list;
}

#define QUENBY_INSTANTIATE_PREFERENCE(T)                                                           \
  template T readStoredPreference<T>(const PropertyListValue*);                                    \
  template std::string rawValueList<T>();

QUENBY_INSTANTIATE_PREFERENCE(WindowPlacementPreference)
QUENBY_INSTANTIATE_PREFERENCE(ShortcutAnimationDisplayPreference)
QUENBY_INSTANTIATE_PREFERENCE(HUDSizePreference)
QUENBY_INSTANTIATE_PREFERENCE(HUDThemePreference)
QUENBY_INSTANTIATE_PREFERENCE(HUDOpacityPreference)
QUENBY_INSTANTIATE_PREFERENCE(HUDActivationGesturePreference)
QUENBY_INSTANTIATE_PREFERENCE(ActivationModifierPreference)

#undef QUENBY_INSTANTIATE_PREFERENCE

} // namespace quenby
