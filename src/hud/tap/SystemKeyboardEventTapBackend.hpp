#pragma once

#include "hud/tap/GlobalKeyboardEventTapError.hpp"
#include "hud/tap/SystemKeyboardEventTapDependencies.hpp"

#include <functional>
#include <optional>

namespace quenby {

/// One session-wide keyboard tap on the main run loop, through the system operations it is
/// given. It is running exactly while it holds a port. Main thread only.
class SystemKeyboardEventTapBackend {
public:
  using Handler = std::function<EventTapDisposition(const KeyboardTapEvent&)>;

  explicit SystemKeyboardEventTapBackend(SystemKeyboardEventTapDependencies dependencies);
  SystemKeyboardEventTapBackend(const SystemKeyboardEventTapBackend&) = delete;
  SystemKeyboardEventTapBackend& operator=(const SystemKeyboardEventTapBackend&) = delete;
  /// Stops, so that no callback can reach a destroyed backend.
  ~SystemKeyboardEventTapBackend();

  /// Creates the tap, adds it to the main run loop in the common modes and enables it; `handler`
  /// then answers every event. Starting a running backend changes nothing. On failure nothing
  /// stays installed.
  [[nodiscard]] std::optional<GlobalKeyboardEventTapError> start(Handler handler);
  /// Removes and invalidates the tap; stopping a stopped backend does nothing. The handler may
  /// stop the backend while it runs, but must not start it.
  void stop();
  [[nodiscard]] bool isRunning() const { return static_cast<bool>(port_); }
  /// Enables the tap again after the system switched it off, and tells whether it took. False
  /// when not running.
  [[nodiscard]] bool reenable();

  /// The callback handed to the system, with the backend as `userInfo`. Anything without a
  /// backend or a handler goes on unchanged.
  static EventTapDisposition deliver(void* userInfo, const KeyboardTapEvent& event);

private:
  SystemKeyboardEventTapDependencies dependencies_;
  Handler handler_;
  /// While the handler runs; a stop from inside it leaves the handler to be cleared afterwards.
  bool delivering_ = false;
  EventTapPort port_;
  EventTapRunLoopSource source_;
};

} // namespace quenby
