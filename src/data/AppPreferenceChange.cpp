#include "data/AppPreferenceChange.hpp"

#include <cstddef>

namespace quenby {

namespace {

constexpr std::array<std::string_view, kAllAppPreferenceProperties.size()> kPropertyNames{
    "windowPlacement",
    "hudSize",
    "activationModifier",
    "hudActivationGesture",
    "hudTheme",
    "hudOpacity",
    "shortcutAnimationEnabled",
    "shortcutAnimationDisplay",
    "shortcutHidesFrontmostApplication",
};

} // namespace

std::string_view propertyName(AppPreferenceProperty property) {
  return kPropertyNames[static_cast<std::size_t>(property)];
}

std::optional<AppPreferenceProperty> appPreferencePropertyNamed(std::string_view name) {
  for (const auto property : kAllAppPreferenceProperties) {
    if (propertyName(property) == name) {
      return property;
    }
  }
  return std::nullopt;
}

} // namespace quenby
