#pragma once

#include "hud/view/HUDKey.hpp"

#include <optional>

namespace quenby {

/// Turns the left button's presses and releases on the HUD into key clicks: a click is a press
/// and a release over the same key, so pressing one key and releasing over another (or outside
/// every key) selects nothing. Holds only the key under the last press. Main thread only.
class HUDKeyClickTracker {
public:
  /// `key` is the key under the press, if any.
  void press(std::optional<HUDKey> key) { pressedKey_ = key; }
  /// True when the drag belongs to a press on a key, and must not reach the view.
  [[nodiscard]] bool drag() const { return pressedKey_.has_value(); }
  /// `key` is the key under the release; the answer is the clicked key, if the press was on it.
  [[nodiscard]] std::optional<HUDKey> release(std::optional<HUDKey> key) {
    const auto pressed = pressedKey_;
    pressedKey_.reset();
    return pressed && pressed == key ? pressed : std::nullopt;
  }
  /// Forgets a press in progress, as when the panel goes away under it.
  void reset() { pressedKey_.reset(); }

  [[nodiscard]] const std::optional<HUDKey>& pressedKey() const { return pressedKey_; }

private:
  std::optional<HUDKey> pressedKey_;
};

} // namespace quenby
