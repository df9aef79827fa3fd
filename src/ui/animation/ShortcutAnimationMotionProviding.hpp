#pragma once

namespace quenby {

/// Whether the user asked the system for less motion. Read at each presentation, since the
/// setting can change at any time. Main thread only.
class ShortcutAnimationMotionProviding {
public:
  virtual ~ShortcutAnimationMotionProviding() = default;
  [[nodiscard]] virtual bool prefersReducedMotion() const = 0;
};

/// Full motion.
class InertShortcutAnimationMotionProvider final : public ShortcutAnimationMotionProviding {
public:
  [[nodiscard]] bool prefersReducedMotion() const override { return false; }
};

} // namespace quenby
