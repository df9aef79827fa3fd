#pragma once

#include "hud/routing/HUDKeyboardAction.hpp"
#include "hud/tap/EventTapDisposition.hpp"

namespace quenby {

/// A key's fate is the tap's own: passed on or swallowed.
using HUDKeyboardEventDisposition = EventTapDisposition;

/// Whether the HUD swallows a key, and what the key asks of it. Every key that is not the HUD's
/// business gets the default: forwarded, no action.
struct HUDKeyboardEventDecision {
  HUDKeyboardEventDisposition disposition = HUDKeyboardEventDisposition::forward;
  HUDKeyboardAction action;

  [[nodiscard]] static HUDKeyboardEventDecision consume(HUDKeyboardAction action) {
    return {HUDKeyboardEventDisposition::consume, std::move(action)};
  }

  friend bool operator==(const HUDKeyboardEventDecision&,
                         const HUDKeyboardEventDecision&) = default;
};

} // namespace quenby
