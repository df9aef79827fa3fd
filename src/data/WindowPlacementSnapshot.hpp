#pragma once

#include "base/Geometry.hpp"
#include "data/AppPreferences.hpp"

#include <optional>
#include <vector>

namespace quenby {

/// The screens and the mouse at one instant, in the global screen space.
struct WindowPlacementSnapshot {
  /// Every screen's frame, in the system's order.
  std::vector<Rect> screenFrames;
  /// The frame of the screen the system calls main; none when it names none.
  std::optional<Rect> mainFrame;
  Point mouseLocation;

  /// The frame of the screen a window placed by `preference` appears on. The screen at the
  /// origin of the space (the primary display) wins over the system's main screen, which follows
  /// keyboard focus; with no screens at all the answer is a 1280×800 frame at the origin.
  [[nodiscard]] Rect targetFrame(WindowPlacementPreference preference) const;
  [[nodiscard]] Rect targetFrame(ShortcutAnimationDisplayPreference preference) const;

  friend bool operator==(const WindowPlacementSnapshot&, const WindowPlacementSnapshot&) = default;
};

} // namespace quenby
