#pragma once

#include "hud/routing/HUDKeyboardEventDecision.hpp"

#include <cstdint>

namespace quenby {

/// A key-down that the keyboard tap could not settle by its own bookkeeping: not a repeat, not a
/// key already swallowed.
struct KeyDownRoutingRequest {
  std::uint16_t keyCode = 0;
  std::uint64_t flags = 0;
  bool hudIsVisible = false;
  /// A side of the activation modifier is held that has not been released since the tap
  /// (re)started or the preferences changed; no letter shortcut may fire on it.
  bool modifierSuppressedUntilRelease = false;
};

/// Decides what a key-down means to the program. Runs inside the tap's callback for every key of
/// the session: it must not block, and a key it forwards must cost no allocation. Main thread
/// only.
class KeyDownRouting {
public:
  virtual ~KeyDownRouting() = default;
  /// A consumed key has its repeats and its key-up swallowed too; an `openSettings` action's
  /// repeats are swallowed at once.
  [[nodiscard]] virtual HUDKeyboardEventDecision route(const KeyDownRoutingRequest& request) = 0;
};

} // namespace quenby
