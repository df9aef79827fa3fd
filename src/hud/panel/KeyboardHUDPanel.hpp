#pragma once

#include "base/Geometry.hpp"
#include "hud/panel/KeyboardHUDPanelConfiguration.hpp"

#include <functional>
#include <optional>

namespace quenby {

/// The window that hosts the HUD view, as the panel controller drives it. Frames are in the
/// global screen space. Main thread only.
class KeyboardHUDPanel {
public:
  virtual ~KeyboardHUDPanel() = default;

  [[nodiscard]] virtual bool isVisible() const = 0;
  [[nodiscard]] virtual Rect frame() const = 0;
  virtual void setFrameOrigin(Point origin) = 0;
  [[nodiscard]] virtual Size contentSize() const = 0;
  /// Resizes the content, keeping the frame's origin, and lays the view out again at once.
  virtual void setContentSize(Size size) = 0;
  [[nodiscard]] virtual double alpha() const = 0;
  virtual void setAlpha(double alpha) = 0;
  virtual void setAppearance(std::optional<KeyboardHUDAppearanceName> appearance) = 0;
  /// Lays out and draws the content and orders the panel front without activating the
  /// application. `onFirstFrame` runs once the first frame is on screen, and only if the panel
  /// is still there and visible then; it may run after a later `dismiss`.
  virtual void present(std::function<void()> onFirstFrame) = 0;
  /// Forgets a press in progress and orders the panel out.
  virtual void dismiss() = 0;
};

/// A panel that never appears: presenting leaves it hidden, so a show is undone at once.
class InertKeyboardHUDPanel final : public KeyboardHUDPanel {
public:
  explicit InertKeyboardHUDPanel(Size contentSize) : contentSize_(contentSize) {}

  [[nodiscard]] bool isVisible() const override { return false; }
  [[nodiscard]] Rect frame() const override {
    return {origin_.x, origin_.y, contentSize_.width, contentSize_.height};
  }
  void setFrameOrigin(Point origin) override { origin_ = origin; }
  [[nodiscard]] Size contentSize() const override { return contentSize_; }
  void setContentSize(Size size) override { contentSize_ = size; }
  [[nodiscard]] double alpha() const override { return alpha_; }
  void setAlpha(double alpha) override { alpha_ = alpha; }
  void setAppearance(std::optional<KeyboardHUDAppearanceName>) override {}
  void present(std::function<void()>) override {}
  void dismiss() override {}

private:
  Point origin_;
  Size contentSize_;
  double alpha_ = 1.0;
};

} // namespace quenby
