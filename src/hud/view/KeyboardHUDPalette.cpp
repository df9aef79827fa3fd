#include "hud/view/KeyboardHUDPalette.hpp"

namespace quenby {

KeyboardHUDPalette KeyboardHUDPalette::make(HUDThemePreference theme,
                                            KeyboardHUDColorScheme environment) {
  KeyboardHUDPalette palette;
  switch (theme) {
  case HUDThemePreference::light:
    palette.preferredColorScheme = KeyboardHUDColorScheme::light;
    palette.appearanceName = kAquaAppearanceName;
    break;
  case HUDThemePreference::dark:
    palette.preferredColorScheme = KeyboardHUDColorScheme::dark;
    palette.appearanceName = kDarkAquaAppearanceName;
    break;
  case HUDThemePreference::system:
    break;
  }
  const auto scheme = palette.preferredColorScheme.value_or(environment);
  palette.primaryTextScheme = scheme;

  using enum KeyboardHUDPaletteColor;
  if (scheme == KeyboardHUDColorScheme::light) {
    palette.panelBase = white;
    palette.panelBaseOpacity = 0.62;
    palette.panelBorder = black;
    palette.panelBorderOpacity = 0.12;
    palette.keyFill = white;
    palette.keyFillOpacity = 0.82;
    palette.unboundKeyFillOpacity = 0.48;
    palette.keyBorder = black;
    palette.keyBorderOpacity = 0.10;
  } else {
    palette.panelBase = black;
    palette.panelBaseOpacity = 0.72;
    palette.panelBorder = white;
    palette.panelBorderOpacity = 0.18;
    palette.keyFill = white;
    palette.keyFillOpacity = 0.15;
    palette.unboundKeyFillOpacity = 0.07;
    palette.keyBorder = white;
    palette.keyBorderOpacity = 0.13;
  }
  return palette;
}

KeyboardHUDPaletteColor KeyboardHUDPalette::textColor() const {
  return primaryTextScheme == KeyboardHUDColorScheme::light ? KeyboardHUDPaletteColor::black
                                                            : KeyboardHUDPaletteColor::white;
}

KeyboardHUDRGBColor KeyboardHUDPalette::warningColor() const {
  return primaryTextScheme == KeyboardHUDColorScheme::light
             ? KeyboardHUDRGBColor{1.0, 0.584, 0.0}
             : KeyboardHUDRGBColor{1.0, 0.624, 0.039};
}

KeyboardHUDRGBColor KeyboardHUDPalette::runningColor() const {
  return primaryTextScheme == KeyboardHUDColorScheme::light
             ? KeyboardHUDRGBColor{0.204, 0.780, 0.349}
             : KeyboardHUDRGBColor{0.188, 0.820, 0.345};
}

} // namespace quenby
