#include "hud/tap/SystemKeyboardEventTapDependencies.hpp"

namespace quenby {

SystemKeyboardEventTapDependencies SystemKeyboardEventTapDependencies::inert() {
  return {.createTap = [](const EventTapCreation&) { return EventTapPort{}; },
          .createRunLoopSource = [](EventTapPort) { return EventTapRunLoopSource{}; },
          .mainRunLoop = [] { return EventTapRunLoop{}; },
          .addRunLoopSource = [](EventTapRunLoop, EventTapRunLoopSource, EventTapRunLoopMode) {},
          .removeRunLoopSource = [](EventTapRunLoop, EventTapRunLoopSource, EventTapRunLoopMode) {},
          .enableTap = [](EventTapPort, bool) {},
          .isTapEnabled = [](EventTapPort) { return false; },
          .invalidateTap = [](EventTapPort) {}};
}

} // namespace quenby
