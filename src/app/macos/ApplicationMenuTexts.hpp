#pragma once

#include "app/menu/MenuBarTexts.hpp"
#include "base/Localizer.hpp"

namespace quenby {

inline constexpr LocalizedText kApplicationMenuQuitText{
    "menu.application.quit", "Quit Quenby",
    "Application menu item (shown while a Quenby window is active) that quits Quenby."};

} // namespace quenby
