#pragma once

#include "base/Geometry.hpp"
#include "data/AppPreferences.hpp"

#include <optional>
#include <span>

namespace quenby {

/// One screen as the animation sees it, in the global screen space.
struct ShortcutAnimationScreen {
  Rect frame;
  /// The frame less the menu bar and the Dock.
  Rect visibleFrame;
  /// The screen the system calls main (the one with keyboard focus).
  bool isMain = false;

  /// Where the animation is centred: with `displayUnderMouse`, the visible frame of the first
  /// screen whose frame holds `mouse`; otherwise, or with the pointer off every screen, the
  /// visible frame of the main screen, or of the first one when none is main. None without
  /// screens. `screens` is in the system's order.
  [[nodiscard]] static std::optional<Rect>
  targetFrame(std::span<const ShortcutAnimationScreen> screens, Point mouse,
              ShortcutAnimationDisplayPreference display);

  friend bool operator==(const ShortcutAnimationScreen&, const ShortcutAnimationScreen&) = default;
};

} // namespace quenby
