#pragma once

#include "hud/panel/HUDDigitInfoPresenting.hpp"

namespace quenby {

/// Explains a digit in an informational alert, brought to the front. No state of its own.
class AlertHUDDigitInfoPresenter final : public HUDDigitInfoPresenting {
public:
  void show(int digit, const std::string& message) override;
};

} // namespace quenby
