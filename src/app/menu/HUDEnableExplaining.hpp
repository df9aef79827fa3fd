#pragma once

#include "app/menu/MenuBarTexts.hpp"
#include "base/Localizer.hpp"

#include <string>

namespace quenby {

/// The explanation shown before the HUD is turned on, already localised.
struct HUDEnableExplanation {
  std::string message;
  std::string informativeText;
  std::string continueTitle;
  std::string cancelTitle;
};

/// The explanation in the user's language: the menu and Settings turn the HUD on alike.
[[nodiscard]] inline HUDEnableExplanation hudEnableExplanation(const Localizer& localizer) {
  return {.message = localizer.localized(kEnableHUDAlertMessageText),
          .informativeText = localizer.localized(kEnableHUDAlertInformativeText),
          .continueTitle = localizer.localized(kEnableHUDAlertContinueText),
          .cancelTitle = localizer.localized(kEnableHUDAlertCancelText)};
}

/// Asks the user, modally, whether to turn the HUD on after explaining what it needs.
class HUDEnableExplaining {
public:
  virtual ~HUDEnableExplaining() = default;
  /// True only when the user chose to continue; returns once the user has answered.
  [[nodiscard]] virtual bool confirmEnable(const HUDEnableExplanation& explanation) = 0;
};

/// Asks nobody and answers cancel, so nothing is ever turned on behind the user's back.
class InertHUDEnableExplainer final : public HUDEnableExplaining {
public:
  [[nodiscard]] bool confirmEnable(const HUDEnableExplanation&) override { return false; }
};

} // namespace quenby
