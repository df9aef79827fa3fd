#pragma once

#include "base/Localizer.hpp"

namespace quenby {

inline constexpr LocalizedText kMenuSettingsText{"menu.settings", "Settings",
                                                 "App menu item that opens the Settings window."};

inline constexpr LocalizedText kApplicationMenuQuitText{
    "menu.application.quit", "Quit Quenby",
    "Application menu item (shown while a Quenby window is active) that quits Quenby."};

} // namespace quenby
