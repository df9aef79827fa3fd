#include "hud/panel/KeyboardHUDPanelConfiguration.hpp"

#include "data/AppPreferenceTable.hpp"
#include "hud/view/KeyboardHUDLayout.hpp"

namespace quenby {

KeyboardHUDPanelConfiguration KeyboardHUDPanelConfiguration::make(HUDSizePreference size,
                                                                  HUDThemePreference theme) {
  KeyboardHUDPanelConfiguration configuration;
  configuration.contentSize = KeyboardHUDLayout::contentSize(size);
  configuration.appearanceName = keyboardHUDAppearanceName(theme);
  return configuration;
}

std::optional<KeyboardHUDAppearanceName> keyboardHUDAppearanceName(HUDThemePreference theme) {
  switch (theme) {
  case HUDThemePreference::light:
    return KeyboardHUDAppearanceName::aqua;
  case HUDThemePreference::dark:
    return KeyboardHUDAppearanceName::darkAqua;
  case HUDThemePreference::system:
    break;
  }
  return std::nullopt;
}

double keyboardHUDAlpha(HUDOpacityPreference opacity) {
  return static_cast<double>(rawValue(opacity)) / 100.0;
}

} // namespace quenby
