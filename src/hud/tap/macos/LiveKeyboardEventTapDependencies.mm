// The keyboard tap's eight operations over CoreGraphics event taps, CFMachPort and the main run
// loop.
//
// Threading: main thread only. The tap's source is added to the main run loop, so the C callback
// below runs on the main thread too and answers synchronously; it hops nowhere.
//
// Lifetime: a created tap's port (+1 from CGEventTapCreate) is released by `invalidateTap`, a
// created source (+1 from CFMachPortCreateRunLoopSource) by `removeRunLoopSource`; the core
// passes each there exactly once. The callback's user data is a context this value owns from
// creation until invalidation, after which the system calls back no more; the core's user
// pointer inside it is not retained.
//
// Guarantee: the callback never edits or posts an event. It reads the key code, the auto-repeat
// field and the flags, asks the core, and returns the same event to pass it on or NULL to drop
// it.

#include "hud/tap/macos/LiveKeyboardEventTapDependencies.hpp"

#import <CoreFoundation/CoreFoundation.h>
#import <CoreGraphics/CoreGraphics.h>
#include <memory>
#include <unordered_map>

namespace quenby {
namespace {

struct TapContext {
  EventTapCallback callback = nullptr;
  void* userInfo = nullptr;
};

/// The contexts of the live taps, by port.
using TapContexts = std::unordered_map<void*, std::unique_ptr<TapContext>>;

CGEventRef _Nullable handleTapEvent(CGEventTapProxy, CGEventType type, CGEventRef event,
                                    void* _Nullable userInfo) {
  const auto* context = static_cast<const TapContext*>(userInfo);
  if (context == nullptr || context->callback == nullptr) {
    return event;
  }
  KeyboardTapEvent tapEvent{.type = static_cast<KeyboardTapEventType>(type)};
  // A disabled-tap notice carries no key; its fields are not read.
  if (type == kCGEventKeyDown || type == kCGEventKeyUp || type == kCGEventFlagsChanged) {
    tapEvent.keyCode = CGEventGetIntegerValueField(event, kCGKeyboardEventKeycode);
    tapEvent.isAutorepeat = CGEventGetIntegerValueField(event, kCGKeyboardEventAutorepeat) != 0;
    tapEvent.flags = CGEventGetFlags(event);
  }
  return context->callback(context->userInfo, tapEvent) == EventTapDisposition::consume ? nullptr
                                                                                        : event;
}

CFMachPortRef machPort(EventTapPort port) { return static_cast<CFMachPortRef>(port.pointer); }
CFRunLoopRef runLoop(EventTapRunLoop loop) { return static_cast<CFRunLoopRef>(loop.pointer); }
CFRunLoopSourceRef runLoopSource(EventTapRunLoopSource source) {
  return static_cast<CFRunLoopSourceRef>(source.pointer);
}

} // namespace

SystemKeyboardEventTapDependencies makeLiveKeyboardEventTapDependencies() {
  auto contexts = std::make_shared<TapContexts>();
  return {
      .createTap =
          [contexts](const EventTapCreation& creation) {
            auto context = std::make_unique<TapContext>(
                TapContext{.callback = creation.callback, .userInfo = creation.userInfo});
            CFMachPortRef port =
                CGEventTapCreate(static_cast<CGEventTapLocation>(creation.location),
                                 static_cast<CGEventTapPlacement>(creation.placement),
                                 static_cast<CGEventTapOptions>(creation.options),
                                 creation.eventMask, handleTapEvent, context.get());
            if (port == nullptr) {
              return EventTapPort{};
            }
            (*contexts)[port] = std::move(context);
            return EventTapPort{port};
          },
      .createRunLoopSource =
          [](EventTapPort port) {
            return EventTapRunLoopSource{
                CFMachPortCreateRunLoopSource(kCFAllocatorDefault, machPort(port), 0)};
          },
      .mainRunLoop = [] { return EventTapRunLoop{CFRunLoopGetMain()}; },
      .addRunLoopSource =
          [](EventTapRunLoop loop, EventTapRunLoopSource source, EventTapRunLoopMode) {
            CFRunLoopAddSource(runLoop(loop), runLoopSource(source), kCFRunLoopCommonModes);
          },
      .removeRunLoopSource =
          [](EventTapRunLoop loop, EventTapRunLoopSource source, EventTapRunLoopMode) {
            CFRunLoopRemoveSource(runLoop(loop), runLoopSource(source), kCFRunLoopCommonModes);
            CFRelease(runLoopSource(source));
          },
      .enableTap = [](EventTapPort port, bool enable) { CGEventTapEnable(machPort(port), enable); },
      .isTapEnabled = [](EventTapPort port) { return CGEventTapIsEnabled(machPort(port)); },
      .invalidateTap =
          [contexts](EventTapPort port) {
            CFMachPortInvalidate(machPort(port));
            CFRelease(machPort(port));
            contexts->erase(port.pointer);
          },
  };
}

} // namespace quenby
