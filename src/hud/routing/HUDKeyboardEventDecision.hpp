#pragma once

#include "hud/routing/HUDKeyboardAction.hpp"
#include "hud/tap/EventTapDisposition.hpp"

namespace quenby {

/// A key's fate is the tap's own: passed on or swallowed.
using HUDKeyboardEventDisposition = EventTapDisposition;

/// Whether the HUD swallows a key, and what the key asks of it. Every key that is not the HUD's
/// business gets the default: forwarded, no action.
struct HUDKeyboardEventDecision {
  // Written out, not defaulted: a defaulted constructor lets `{}` zero the whole action before
  // constructing it, a cost every passed-on key would pay.
  HUDKeyboardEventDecision() {} // NOLINT(modernize-use-equals-default)
  HUDKeyboardEventDecision(HUDKeyboardEventDisposition disposition, HUDKeyboardAction action)
      : disposition(disposition), action(std::move(action)) {}

  [[nodiscard]] static HUDKeyboardEventDecision consume(HUDKeyboardAction action) {
    return {HUDKeyboardEventDisposition::consume, std::move(action)};
  }

  HUDKeyboardEventDisposition disposition = HUDKeyboardEventDisposition::forward;
  HUDKeyboardAction action;

  friend bool operator==(const HUDKeyboardEventDecision&,
                         const HUDKeyboardEventDecision&) = default;
};

} // namespace quenby
