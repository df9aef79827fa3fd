#pragma once

#include "base/Geometry.hpp"
#include "ui/animation/ShortcutAnimationPaneling.hpp"
#include "ui/animation/ShortcutAnimationViewModel.hpp"

#include <memory>

namespace quenby {

/// Makes the animation's panel, hidden, with content of `contentSize` points that draws `model`
/// (which must outlive the panel). Called once per run.
class ShortcutAnimationPanelCreating {
public:
  virtual ~ShortcutAnimationPanelCreating() = default;
  [[nodiscard]] virtual std::unique_ptr<ShortcutAnimationPaneling>
  makePanel(Size contentSize, const ShortcutAnimationViewModel& model) = 0;
};

/// Makes panels that never appear.
class InertShortcutAnimationPanelFactory final : public ShortcutAnimationPanelCreating {
public:
  [[nodiscard]] std::unique_ptr<ShortcutAnimationPaneling>
  makePanel(Size, const ShortcutAnimationViewModel&) override {
    return std::make_unique<InertShortcutAnimationPanel>();
  }
};

} // namespace quenby
