#pragma once

#include "hud/routing/HUDKeyboardAction.hpp"

namespace quenby {

/// What the event tap asks of the HUD's panel: to show or hide it when a gesture is recognised,
/// and to carry out what a key asked for. Main thread only.
class KeyboardHUDPresenting {
public:
  virtual ~KeyboardHUDPresenting() = default;
  [[nodiscard]] virtual bool isVisible() const = 0;
  virtual void show() = 0;
  virtual void hide() = 0;
  /// Called inside the tap's callback: whatever could block or open a window must wait until
  /// the key event has been answered.
  virtual void perform(const HUDKeyboardAction& action) = 0;
};

/// No panel: never visible, and showing does nothing.
class InertKeyboardHUDPresenter final : public KeyboardHUDPresenting {
public:
  [[nodiscard]] bool isVisible() const override { return false; }
  void show() override {}
  void hide() override {}
  void perform(const HUDKeyboardAction&) override {}
};

} // namespace quenby
