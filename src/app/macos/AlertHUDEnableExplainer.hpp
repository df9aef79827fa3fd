#pragma once

#include "app/menu/HUDEnableExplaining.hpp"

namespace quenby {

/// Explains in a modal AppKit alert what turning the HUD on asks of the user. Main thread only;
/// no state.
class AlertHUDEnableExplainer final : public HUDEnableExplaining {
public:
  [[nodiscard]] bool confirmEnable(const HUDEnableExplanation& explanation) override;
};

} // namespace quenby
