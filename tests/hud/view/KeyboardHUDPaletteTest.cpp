#include "hud/view/KeyboardHUDPalette.hpp"

#include <gtest/gtest.h>

namespace quenby {
namespace {

using enum KeyboardHUDPaletteColor;
using Scheme = KeyboardHUDColorScheme;

const KeyboardHUDPalette kLight{white,
                                0.62,
                                black,
                                0.12,
                                white,
                                0.82,
                                0.48,
                                black,
                                0.10,
                                Scheme::light,
                                "NSAppearanceNameAqua",
                                Scheme::light};
const KeyboardHUDPalette kDark{black,
                               0.72,
                               white,
                               0.18,
                               white,
                               0.15,
                               0.07,
                               white,
                               0.13,
                               Scheme::dark,
                               "NSAppearanceNameDarkAqua",
                               Scheme::dark};

TEST(KeyboardHUDPaletteTest, AFixedThemeIgnoresTheSystemsAppearance) {
  for (const auto environment : {Scheme::light, Scheme::dark}) {
    EXPECT_EQ(KeyboardHUDPalette::make(HUDThemePreference::light, environment), kLight);
    EXPECT_EQ(KeyboardHUDPalette::make(HUDThemePreference::dark, environment), kDark);
  }
}

TEST(KeyboardHUDPaletteTest, TheSystemThemeFollowsTheSystemWithoutForcingAnAppearance) {
  auto light = kLight;
  light.preferredColorScheme.reset();
  light.appearanceName.reset();
  auto dark = kDark;
  dark.preferredColorScheme.reset();
  dark.appearanceName.reset();
  EXPECT_EQ(KeyboardHUDPalette::make(HUDThemePreference::system, Scheme::light), light);
  EXPECT_EQ(KeyboardHUDPalette::make(HUDThemePreference::system, Scheme::dark), dark);
}

TEST(KeyboardHUDPaletteTest, TextAndMarksContrastWithTheScheme) {
  const auto light = KeyboardHUDPalette::make(HUDThemePreference::system, Scheme::light);
  const auto dark = KeyboardHUDPalette::make(HUDThemePreference::system, Scheme::dark);
  EXPECT_EQ(light.textColor(), black);
  EXPECT_EQ(dark.textColor(), white);
  EXPECT_NE(light.warningColor(), dark.warningColor());
  EXPECT_NE(light.runningColor(), dark.runningColor());
}

} // namespace
} // namespace quenby
