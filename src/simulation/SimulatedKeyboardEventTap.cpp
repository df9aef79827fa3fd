#include "simulation/SimulatedKeyboardEventTap.hpp"

namespace quenby {

SystemKeyboardEventTapDependencies SimulatedKeyboardEventTap::dependencies() {
  const auto self = shared_from_this();
  return {
      .createTap =
          [this, self](const EventTapCreation& creation) {
            if (!keyboard_.accessibilityGranted) {
              return EventTapPort{};
            }
            callback_ = creation.callback;
            userInfo_ = creation.userInfo;
            return EventTapPort{&port_};
          },
      .createRunLoopSource = [this, self](EventTapPort) { return EventTapRunLoopSource{&source_}; },
      .mainRunLoop = [this, self] { return EventTapRunLoop{&runLoop_}; },
      .addRunLoopSource = [](EventTapRunLoop, EventTapRunLoopSource, EventTapRunLoopMode) {},
      .removeRunLoopSource = [](EventTapRunLoop, EventTapRunLoopSource, EventTapRunLoopMode) {},
      .enableTap =
          [this, self](EventTapPort, bool enable) {
            enabled_ = enable && !nextReenableFails_;
            nextReenableFails_ = false;
          },
      .isTapEnabled = [this, self](EventTapPort) { return enabled_; },
      .invalidateTap =
          [this, self](EventTapPort) {
            callback_ = nullptr;
            userInfo_ = nullptr;
            enabled_ = false;
          },
  };
}

void SimulatedKeyboardEventTap::deliverKey(std::uint16_t keyCode, bool down, bool isRepeat) {
  if (!isEnabled()) {
    return; // no tap sees it: it goes on, unrecorded
  }
  const auto disposition =
      deliver({.type = down ? KeyboardTapEventType::keyDown : KeyboardTapEventType::keyUp,
               .keyCode = keyCode,
               .isAutorepeat = isRepeat,
               .flags = keyboard_.flags()});
  recorder_.emit("key", {{"code", keyCode},
                         {"down", down},
                         {"repeat", isRepeat},
                         {"disposition",
                          disposition == EventTapDisposition::consume ? "consume" : "forward"}});
}

void SimulatedKeyboardEventTap::deliverFlagsChanged(std::uint16_t keyCode) {
  deliver(
      {.type = KeyboardTapEventType::flagsChanged, .keyCode = keyCode, .flags = keyboard_.flags()});
}

void SimulatedKeyboardEventTap::disable(KeyboardTapEventType reason) {
  if (callback_ == nullptr || !enabled_) {
    return;
  }
  enabled_ = false;
  callback_(userInfo_, {.type = reason});
}

EventTapDisposition SimulatedKeyboardEventTap::deliver(const KeyboardTapEvent& event) const {
  // An event no tap sees goes on to the application in front.
  return isEnabled() ? callback_(userInfo_, event) : EventTapDisposition::forward;
}

} // namespace quenby
