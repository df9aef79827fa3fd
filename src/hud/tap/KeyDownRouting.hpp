#pragma once

#include "hud/tap/EventTapDisposition.hpp"

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

/// The routing's answer. A consumed key has its repeats and its key-up swallowed too.
struct KeyDownVerdict {
  EventTapDisposition disposition = EventTapDisposition::forward;
  /// The key opens Settings: its auto-repeats are swallowed at once.
  bool isSettingsShortcut = false;

  [[nodiscard]] static constexpr KeyDownVerdict forward() { return {}; }
  [[nodiscard]] static constexpr KeyDownVerdict consume() {
    return {EventTapDisposition::consume, false};
  }
  [[nodiscard]] static constexpr KeyDownVerdict settingsShortcut() {
    return {EventTapDisposition::consume, true};
  }

  friend constexpr bool operator==(const KeyDownVerdict&, const KeyDownVerdict&) = default;
};

/// Decides what a key-down means to the program. Runs inside the tap's callback for every key of
/// the session: it must not block and should not allocate. Main thread only.
class KeyDownRouting {
public:
  virtual ~KeyDownRouting() = default;
  [[nodiscard]] virtual KeyDownVerdict route(const KeyDownRoutingRequest& request) = 0;
};

/// Claims no key: every key-down goes on to the focused application.
class ForwardingKeyDownRouter final : public KeyDownRouting {
public:
  [[nodiscard]] KeyDownVerdict route(const KeyDownRoutingRequest&) override {
    return KeyDownVerdict::forward();
  }
};

} // namespace quenby
