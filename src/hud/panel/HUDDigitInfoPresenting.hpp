#pragma once

#include <string>

namespace quenby {

/// Tells the user why a digit picked on the HUD leads nowhere. Main thread only; called after
/// the key event that asked for it has been answered, so it may wait for the user.
class HUDDigitInfoPresenting {
public:
  virtual ~HUDDigitInfoPresenting() = default;
  /// `message` is localised and complete.
  virtual void show(int digit, const std::string& message) = 0;
};

/// Shows nothing.
class InertHUDDigitInfoPresenter final : public HUDDigitInfoPresenting {
public:
  void show(int, const std::string&) override {}
};

} // namespace quenby
