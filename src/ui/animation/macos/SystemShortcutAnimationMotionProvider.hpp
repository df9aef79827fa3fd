#pragma once

#include "ui/animation/ShortcutAnimationMotionProviding.hpp"

namespace quenby {

/// The system's Reduce motion accessibility setting, read live. Main thread only; no state.
class SystemShortcutAnimationMotionProvider final : public ShortcutAnimationMotionProviding {
public:
  [[nodiscard]] bool prefersReducedMotion() const override;
};

} // namespace quenby
