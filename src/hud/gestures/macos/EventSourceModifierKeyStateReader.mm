// Reads whether a key is down from CoreGraphics' event source state.
//
// Threading: any thread, though the gesture recogniser asks only from the main thread.
//
// Lifetime: stateless; valid for as long as it exists.
//
// Guarantee: with the HID system state, the answer is the hardware's, not what any one
// application's event stream has seen so far.

#include "hud/gestures/macos/EventSourceModifierKeyStateReader.hpp"

#import <CoreGraphics/CoreGraphics.h>

namespace quenby {

bool EventSourceModifierKeyStateReader::readKeyState(std::int32_t stateID,
                                                     std::uint16_t keyCode) const {
  return CGEventSourceKeyState(static_cast<CGEventSourceStateID>(stateID), keyCode);
}

} // namespace quenby
