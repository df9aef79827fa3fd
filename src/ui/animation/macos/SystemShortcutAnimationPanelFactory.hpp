#pragma once

#include "ui/animation/ShortcutAnimationPanelCreating.hpp"

namespace quenby {

/// Makes the animation's AppKit panel: borderless, non-activating, click-through, on every Space
/// and over full-screen applications, invisible to accessibility. Main thread only; no state.
class SystemShortcutAnimationPanelFactory final : public ShortcutAnimationPanelCreating {
public:
  [[nodiscard]] std::unique_ptr<ShortcutAnimationPaneling>
  makePanel(Size contentSize, const ShortcutAnimationViewModel& model) override;
};

} // namespace quenby
