#pragma once

#include "hud/tap/EventTapDisposition.hpp"
#include "hud/tap/KeyboardTapEvent.hpp"

#include <cstdint>
#include <functional>

namespace quenby {

/// A system object that the core holds without looking inside; only the operations below use it.
template <typename Tag> struct OpaqueSystemHandle {
  void* pointer = nullptr;

  explicit operator bool() const { return pointer != nullptr; }
  friend bool operator==(OpaqueSystemHandle, OpaqueSystemHandle) = default;
};

using EventTapPort = OpaqueSystemHandle<struct EventTapPortTag>;
using EventTapRunLoopSource = OpaqueSystemHandle<struct EventTapRunLoopSourceTag>;
using EventTapRunLoop = OpaqueSystemHandle<struct EventTapRunLoopTag>;

/// The run-loop modes a source is added in; the tap only ever uses the common ones, so that it
/// keeps working while a menu is tracked or a window dragged.
enum class EventTapRunLoopMode : std::uint8_t { common };

/// Called by the system's side for every event of an installed tap, on the main thread, with the
/// user pointer given at creation. The answer decides whether the event goes on.
using EventTapCallback = EventTapDisposition (*)(void* userInfo, const KeyboardTapEvent& event);

/// Everything `createTap` passes to the system.
struct EventTapCreation {
  static constexpr std::uint32_t kSessionEventTap = 1;
  static constexpr std::uint32_t kHeadInsertEventTap = 0;
  /// An active tap, which may drop events.
  static constexpr std::uint32_t kDefaultOptions = 0;
  /// Key down (10), key up (11) and flags changed (12), nothing else.
  static constexpr std::uint64_t kKeyboardEventMask = 0x1C00;

  std::uint32_t location = kSessionEventTap;
  std::uint32_t placement = kHeadInsertEventTap;
  std::uint32_t options = kDefaultOptions;
  std::uint64_t eventMask = kKeyboardEventMask;
  EventTapCallback callback = nullptr;
  /// Not retained: it must outlive the port.
  void* userInfo = nullptr;
};

/// The eight system operations behind the keyboard tap, as a value so that the backend runs
/// unchanged against the live system, a test's scripted one or the inert one.
///
/// Ownership: a handle returned by `createTap` is the caller's until it is passed to
/// `invalidateTap`, one returned by `createRunLoopSource` until it is passed to
/// `removeRunLoopSource`; each is passed there exactly once. `mainRunLoop` returns a borrowed
/// handle that is never absent.
struct SystemKeyboardEventTapDependencies {
  /// An empty handle when the system refuses (no permission, among other reasons).
  std::function<EventTapPort(const EventTapCreation&)> createTap;
  /// An empty handle when the system refuses.
  std::function<EventTapRunLoopSource(EventTapPort)> createRunLoopSource;
  std::function<EventTapRunLoop()> mainRunLoop;
  std::function<void(EventTapRunLoop, EventTapRunLoopSource, EventTapRunLoopMode)> addRunLoopSource;
  std::function<void(EventTapRunLoop, EventTapRunLoopSource, EventTapRunLoopMode)>
      removeRunLoopSource;
  std::function<void(EventTapPort, bool enable)> enableTap;
  std::function<bool(EventTapPort)> isTapEnabled;
  /// No callback arrives for the port afterwards.
  std::function<void(EventTapPort)> invalidateTap;

  /// A system on which no tap can ever be created.
  [[nodiscard]] static SystemKeyboardEventTapDependencies inert();
};

} // namespace quenby
