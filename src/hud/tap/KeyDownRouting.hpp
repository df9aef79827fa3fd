#pragma once

#include "hud/routing/HUDKeyboardEventDecision.hpp"

#include <cstdint>

namespace quenby {

/// A key-down that the keyboard tap could not settle by its own bookkeeping: not a repeat, not a
/// key already swallowed, and, with the HUD hidden, one made with the activation modifier alone
/// (held since its last release was seen).
struct KeyDownRoutingRequest {
  std::uint16_t keyCode = 0;
  std::uint64_t flags = 0;
  bool hudIsVisible = false;
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
