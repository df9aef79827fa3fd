#pragma once

#include "hud/panel/KeyboardHUDPanelMaking.hpp"

namespace quenby {

/// Makes the HUD's AppKit panel: borderless, non-activating, on every Space and over
/// full-screen applications, taking the first click. Main thread only; no state.
class SystemKeyboardHUDPanelFactory final : public KeyboardHUDPanelMaking {
public:
  [[nodiscard]] std::unique_ptr<KeyboardHUDPanel>
  makePanel(const KeyboardHUDPanelConfiguration& configuration, KeyboardHUDViewModel& model,
            KeyClickHandler onHUDKeyClicked) override;
};

} // namespace quenby
