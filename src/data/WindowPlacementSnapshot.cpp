#include "data/WindowPlacementSnapshot.hpp"

namespace quenby {

Rect WindowPlacementSnapshot::targetFrame(WindowPlacementPreference preference) const {
  if (preference == WindowPlacementPreference::displayUnderMouse) {
    for (const auto& frame : screenFrames) {
      if (frame.contains(mouseLocation)) {
        return frame;
      }
    }
  }
  for (const auto& frame : screenFrames) {
    if (frame.x == 0 && frame.y == 0) {
      return frame;
    }
  }
  if (mainFrame) {
    return *mainFrame;
  }
  if (!screenFrames.empty()) {
    return screenFrames.front();
  }
  return Rect{0, 0, 1280, 800};
}

Rect WindowPlacementSnapshot::targetFrame(ShortcutAnimationDisplayPreference preference) const {
  return targetFrame(preference == ShortcutAnimationDisplayPreference::displayUnderMouse
                         ? WindowPlacementPreference::displayUnderMouse
                         : WindowPlacementPreference::mainDisplay);
}

} // namespace quenby
