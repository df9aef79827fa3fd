#pragma once

#include "data/AppPreferences.hpp"

#include <cstdint>
#include <optional>
#include <string_view>

namespace quenby {

/// The two base colours the HUD is painted with; the opacities beside them do the rest.
enum class KeyboardHUDPaletteColor : std::uint8_t { black, white };

/// Light or dark: the theme's own, or the system's when the theme follows it.
enum class KeyboardHUDColorScheme : std::uint8_t { light, dark };

/// A colour that is not one of the two base colours, in sRGB components 0…1.
struct KeyboardHUDRGBColor {
  double red = 0;
  double green = 0;
  double blue = 0;
  friend bool operator==(const KeyboardHUDRGBColor&, const KeyboardHUDRGBColor&) = default;
};

/// The HUD's colours for one theme under one system appearance. Both drawings (AppKit and the
/// SVG) take every colour from here.
struct KeyboardHUDPalette {
  static constexpr std::string_view kAquaAppearanceName = "NSAppearanceNameAqua";
  static constexpr std::string_view kDarkAquaAppearanceName = "NSAppearanceNameDarkAqua";

  KeyboardHUDPaletteColor panelBase = KeyboardHUDPaletteColor::white;
  double panelBaseOpacity = 0;
  KeyboardHUDPaletteColor panelBorder = KeyboardHUDPaletteColor::black;
  double panelBorderOpacity = 0;
  KeyboardHUDPaletteColor keyFill = KeyboardHUDPaletteColor::white;
  double keyFillOpacity = 0;
  double unboundKeyFillOpacity = 0;
  KeyboardHUDPaletteColor keyBorder = KeyboardHUDPaletteColor::black;
  double keyBorderOpacity = 0;
  /// Forced on the whole view; absent when the theme follows the system.
  std::optional<KeyboardHUDColorScheme> preferredColorScheme;
  /// The named system appearance for the panel; absent when the theme follows the system.
  std::optional<std::string_view> appearanceName;
  KeyboardHUDColorScheme primaryTextScheme = KeyboardHUDColorScheme::light;

  /// `environment` is the system's appearance now; only theme `system` looks at it.
  [[nodiscard]] static KeyboardHUDPalette make(HUDThemePreference theme,
                                               KeyboardHUDColorScheme environment);

  /// Labels, captions and the settings glyph: black on light, white on dark.
  [[nodiscard]] KeyboardHUDPaletteColor textColor() const;
  [[nodiscard]] double textOpacity() const { return 0.88; }
  /// A key's label once an icon takes the middle of the key.
  [[nodiscard]] double secondaryTextOpacity() const { return 0.62; }
  /// The box that stands in for an icon that has not loaded yet.
  [[nodiscard]] double placeholderOpacity() const { return 0.14; }
  /// The mark of an invalid mapping: the system's orange for the scheme.
  [[nodiscard]] KeyboardHUDRGBColor warningColor() const;
  /// The dot under a running application's icon: the system's green for the scheme.
  [[nodiscard]] KeyboardHUDRGBColor runningColor() const;

  friend bool operator==(const KeyboardHUDPalette&, const KeyboardHUDPalette&) = default;
};

} // namespace quenby
