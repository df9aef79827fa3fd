#pragma once

#include "hud/feature/HUDHealth.hpp"
#include "shortcuts/hotkeys/OptionDigitHotKeyHealth.hpp"

namespace quenby {

/// The features' health as the menu reports it.
struct MenuBarHealth {
  HUDHealth hud;
  OptionDigitHotKeyHealth optionDigits = OptionDigitHotKeyHealth::notStarted();

  friend bool operator==(const MenuBarHealth&, const MenuBarHealth&) = default;
};

} // namespace quenby
