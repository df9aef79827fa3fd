#include "ui/animation/ShortcutAnimationScreen.hpp"

namespace quenby {

std::optional<Rect>
ShortcutAnimationScreen::targetFrame(std::span<const ShortcutAnimationScreen> screens, Point mouse,
                                     ShortcutAnimationDisplayPreference display) {
  if (screens.empty()) {
    return std::nullopt;
  }
  if (display == ShortcutAnimationDisplayPreference::displayUnderMouse) {
    for (const auto& screen : screens) {
      if (screen.frame.contains(mouse)) {
        return screen.visibleFrame;
      }
    }
  }
  for (const auto& screen : screens) {
    if (screen.isMain) {
      return screen.visibleFrame;
    }
  }
  return screens.front().visibleFrame;
}

} // namespace quenby
