#pragma once

#include "hud/view/KeyboardHUDViewModel.hpp"

namespace quenby {

/// The content's opacity in a phase of the cross-fade, and how long the ease-in-out towards it
/// takes: the content disappears in 0.12 s, comes back in 0.18 s, and jumps when shown.
struct KeyboardHUDContentFade {
  double opacity = 1;
  double durationSeconds = 0;

  [[nodiscard]] static constexpr KeyboardHUDContentFade
  forPhase(KeyboardHUDContentAnimationPhase phase) {
    switch (phase) {
    case KeyboardHUDContentAnimationPhase::fadingOut:
      return {0, 0.12};
    case KeyboardHUDContentAnimationPhase::fadingIn:
      return {1, 0.18};
    case KeyboardHUDContentAnimationPhase::visible:
      break;
    }
    return {1, 0};
  }

  friend bool operator==(const KeyboardHUDContentFade&, const KeyboardHUDContentFade&) = default;
};

} // namespace quenby
