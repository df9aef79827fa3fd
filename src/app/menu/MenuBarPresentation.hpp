#pragma once

#include "app/menu/MenuBarHealth.hpp"
#include "app/menu/MenuBarIconState.hpp"
#include "app/menu/MenuBarItemPresentation.hpp"
#include "base/Localizer.hpp"
#include "data/AppPreferences.hpp"
#include "hud/access/KeyboardAccessCondition.hpp"

#include <string>
#include <vector>

namespace quenby {

/// Everything the menu is computed from.
struct MenuBarPresentationInputs {
  MenuBarHealth health;
  /// The user's HUD switch, which can be on while the HUD cannot run.
  bool isHUDEnabled = false;
  ActivationModifierPreference modifier = ActivationModifierPreference::option;
  bool diagnosticsReportIssue = false;
  /// Why a running tap may hear nothing; shown only while the HUD is ready.
  KeyboardAccessCondition keyboardAccess{};
};

/// The status item and its menu, ready to show: the icon's variant, what the icon says to
/// accessibility clients, and the menu's lines in order (status lines first, then the actions
/// that repair or toggle, Settings and Quit).
struct MenuBarPresentation {
  MenuBarIconState iconState = MenuBarIconState::normal;
  std::string accessibilityDescription;
  std::vector<MenuBarItemPresentation> items;

  [[nodiscard]] static MenuBarPresentation make(const MenuBarPresentationInputs& inputs,
                                                const Localizer& localizer);

  friend bool operator==(const MenuBarPresentation&, const MenuBarPresentation&) = default;
};

} // namespace quenby
