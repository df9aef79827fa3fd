#pragma once

#include "ui/animation/ShortcutAnimationScreenProviding.hpp"

namespace quenby {

/// The screens and the pointer as AppKit reports them now. Main thread only; no state.
class SystemShortcutAnimationScreenProvider final : public ShortcutAnimationScreenProviding {
public:
  [[nodiscard]] std::vector<ShortcutAnimationScreen> screens() const override;
  [[nodiscard]] Point mouseLocation() const override;
};

} // namespace quenby
