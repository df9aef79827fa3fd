#pragma once

#include "hud/panel/KeyboardHUDPanelMaking.hpp"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace quenby {

/// A panel that becomes visible when presented (unless told to refuse) and keeps the first-frame
/// callbacks for the test to deliver when it likes.
class RecordingKeyboardHUDPanel final : public KeyboardHUDPanel {
public:
  explicit RecordingKeyboardHUDPanel(const KeyboardHUDPanelConfiguration& configuration)
      : contentSize_(configuration.contentSize), appearance_(configuration.appearanceName) {}

  [[nodiscard]] bool isVisible() const override { return visible; }
  [[nodiscard]] Rect frame() const override {
    return {origin.x, origin.y, contentSize_.width, contentSize_.height};
  }
  void setFrameOrigin(Point newOrigin) override { origin = newOrigin; }
  [[nodiscard]] Size contentSize() const override { return contentSize_; }
  void setContentSize(Size size) override {
    contentSize_ = size;
    ++layouts;
  }
  [[nodiscard]] double alpha() const override { return alpha_; }
  void setAlpha(double value) override {
    alpha_ = value;
    ++alphaWrites;
  }
  void setAppearance(std::optional<KeyboardHUDAppearanceName> appearance) override {
    appearance_ = appearance;
  }
  void present(std::function<void()> onFirstFrame) override {
    firstFrames.push_back(std::move(onFirstFrame));
    visible = !refusesToShow;
  }
  void dismiss() override { visible = false; }

  [[nodiscard]] const std::optional<KeyboardHUDAppearanceName>& appearance() const {
    return appearance_;
  }

  bool visible = false;
  bool refusesToShow = false;
  Point origin;
  int layouts = 0;
  int alphaWrites = 0;
  std::vector<std::function<void()>> firstFrames;

private:
  Size contentSize_;
  double alpha_ = 1.0;
  std::optional<KeyboardHUDAppearanceName> appearance_;
};

/// Makes one recording panel and keeps it, with the click hook, within the test's reach.
class RecordingKeyboardHUDPanelFactory final : public KeyboardHUDPanelMaking {
public:
  [[nodiscard]] std::unique_ptr<KeyboardHUDPanel>
  makePanel(const KeyboardHUDPanelConfiguration& configuration, KeyboardHUDViewModel&,
            KeyClickHandler onHUDKeyClicked) override {
    auto made = std::make_unique<RecordingKeyboardHUDPanel>(configuration);
    panel = made.get();
    clicked = std::move(onHUDKeyClicked);
    return made;
  }

  RecordingKeyboardHUDPanel* panel = nullptr;
  KeyClickHandler clicked;
};

} // namespace quenby
