#pragma once

namespace quenby {

/// What the event tap asks of the HUD's panel when a gesture is recognised. Main thread only.
class KeyboardHUDPresenting {
public:
  virtual ~KeyboardHUDPresenting() = default;
  [[nodiscard]] virtual bool isVisible() const = 0;
  virtual void show() = 0;
  virtual void hide() = 0;
};

/// No panel: never visible, and showing does nothing.
class InertKeyboardHUDPresenter final : public KeyboardHUDPresenting {
public:
  [[nodiscard]] bool isVisible() const override { return false; }
  void show() override {}
  void hide() override {}
};

} // namespace quenby
