#pragma once

#include <cstdint>

namespace quenby {

/// The system's event types that reach the keyboard tap. Any other raw value may arrive too and
/// is passed on untouched.
enum class KeyboardTapEventType : std::uint32_t {
  keyDown = 10,
  keyUp = 11,
  flagsChanged = 12,
  tapDisabledByTimeout = 0xFFFFFFFE,
  tapDisabledByUserInput = 0xFFFFFFFF,
};

/// One event as the tap's callback reads it from the system, before anything is decided.
struct KeyboardTapEvent {
  KeyboardTapEventType type = KeyboardTapEventType::keyDown;
  /// As the system's integer field holds it; a key event's code fits in 16 bits.
  std::int64_t keyCode = 0;
  bool isAutorepeat = false;
  /// The event's modifier flags, device-dependent low bits included.
  std::uint64_t flags = 0;
};

} // namespace quenby
