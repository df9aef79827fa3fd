#pragma once

#include "hud/panel/KeyboardHUDPanel.hpp"
#include "hud/panel/KeyboardHUDPanelConfiguration.hpp"
#include "hud/view/HUDKey.hpp"
#include "hud/view/KeyboardHUDViewModel.hpp"

#include <functional>
#include <memory>

namespace quenby {

/// Makes the HUD's panel once, hidden, with its content view over `model` (which must outlive
/// the panel). `onHUDKeyClicked` receives each key clicked on the panel: pressed and released
/// over the same key with the left button.
class KeyboardHUDPanelMaking {
public:
  using KeyClickHandler = std::function<void(HUDKey)>;

  virtual ~KeyboardHUDPanelMaking() = default;
  [[nodiscard]] virtual std::unique_ptr<KeyboardHUDPanel>
  makePanel(const KeyboardHUDPanelConfiguration& configuration, KeyboardHUDViewModel& model,
            KeyClickHandler onHUDKeyClicked) = 0;
};

/// Makes panels that never appear.
class InertKeyboardHUDPanelFactory final : public KeyboardHUDPanelMaking {
public:
  [[nodiscard]] std::unique_ptr<KeyboardHUDPanel>
  makePanel(const KeyboardHUDPanelConfiguration& configuration, KeyboardHUDViewModel&,
            KeyClickHandler) override {
    return std::make_unique<InertKeyboardHUDPanel>(configuration.contentSize);
  }
};

} // namespace quenby
