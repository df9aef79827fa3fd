#pragma once

#include "base/Geometry.hpp"
#include "ui/animation/ShortcutAnimationScreen.hpp"

#include <vector>

namespace quenby {

/// The screens and the pointer at the moment a shortcut is accepted. Main thread only.
class ShortcutAnimationScreenProviding {
public:
  virtual ~ShortcutAnimationScreenProviding() = default;
  /// Every screen, in the system's order.
  [[nodiscard]] virtual std::vector<ShortcutAnimationScreen> screens() const = 0;
  [[nodiscard]] virtual Point mouseLocation() const = 0;
};

/// No screen at all, so the animation never shows.
class InertShortcutAnimationScreenProvider final : public ShortcutAnimationScreenProviding {
public:
  [[nodiscard]] std::vector<ShortcutAnimationScreen> screens() const override { return {}; }
  [[nodiscard]] Point mouseLocation() const override { return {}; }
};

} // namespace quenby
