#pragma once

#include "base/Geometry.hpp"

namespace quenby {

/// The small floating square the animation plays in, as the controller drives it. It never takes
/// focus, ignores the mouse and is invisible to accessibility from the moment it is made. Frames
/// are in the global screen space. Main thread only.
class ShortcutAnimationPaneling {
public:
  virtual ~ShortcutAnimationPaneling() = default;

  virtual void setFrameOrigin(Point origin) = 0;
  /// Lays out and draws the content once, hidden, so that the first play does not pay for
  /// building it.
  virtual void prepareContent() = 0;
  /// Draws the model as it is now, orders the panel front without activating the application,
  /// and replaces whatever animation is running with a new one of the model's timeline.
  virtual void play() = 0;
  /// Removes the animation and orders the panel out.
  virtual void hide() = 0;
};

/// A panel that never appears.
class InertShortcutAnimationPanel final : public ShortcutAnimationPaneling {
public:
  void setFrameOrigin(Point) override {}
  void prepareContent() override {}
  void play() override {}
  void hide() override {}
};

} // namespace quenby
