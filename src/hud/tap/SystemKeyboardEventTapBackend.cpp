#include "hud/tap/SystemKeyboardEventTapBackend.hpp"

#include <utility>

namespace quenby {

SystemKeyboardEventTapBackend::SystemKeyboardEventTapBackend(
    SystemKeyboardEventTapDependencies dependencies)
    : dependencies_(std::move(dependencies)) {}

SystemKeyboardEventTapBackend::~SystemKeyboardEventTapBackend() { stop(); }

std::optional<GlobalKeyboardEventTapError> SystemKeyboardEventTapBackend::start(Handler handler) {
  if (port_) {
    return std::nullopt;
  }
  handler_ = std::move(handler);
  const auto port = dependencies_.createTap(
      {.callback = &SystemKeyboardEventTapBackend::deliver, .userInfo = this});
  if (!port) {
    handler_ = nullptr;
    return GlobalKeyboardEventTapError::creationFailed;
  }
  const auto source = dependencies_.createRunLoopSource(port);
  if (!source) {
    dependencies_.invalidateTap(port);
    handler_ = nullptr;
    return GlobalKeyboardEventTapError::creationFailed;
  }
  dependencies_.addRunLoopSource(dependencies_.mainRunLoop(), source, EventTapRunLoopMode::common);
  port_ = port;
  source_ = source;
  dependencies_.enableTap(port_, true);
  return std::nullopt;
}

void SystemKeyboardEventTapBackend::stop() {
  if (!port_ && !source_ && !handler_) {
    return;
  }
  // Invalidation alone ends the callbacks; disabling first would add nothing.
  if (source_) {
    dependencies_.removeRunLoopSource(dependencies_.mainRunLoop(), source_,
                                      EventTapRunLoopMode::common);
  }
  if (port_) {
    dependencies_.invalidateTap(port_);
  }
  source_ = {};
  port_ = {};
  if (!delivering_) {
    handler_ = nullptr;
  }
}

bool SystemKeyboardEventTapBackend::reenable() {
  if (!port_) {
    return false;
  }
  dependencies_.enableTap(port_, true);
  return dependencies_.isTapEnabled(port_);
}

EventTapDisposition SystemKeyboardEventTapBackend::deliver(void* userInfo,
                                                           const KeyboardTapEvent& event) {
  auto* backend = static_cast<SystemKeyboardEventTapBackend*>(userInfo);
  if (backend == nullptr || !backend->handler_) {
    return EventTapDisposition::forward;
  }
  backend->delivering_ = true;
  const auto disposition = backend->handler_(event);
  backend->delivering_ = false;
  // Stopped from inside: the closure could not be destroyed while it ran.
  if (!backend->port_) {
    backend->handler_ = nullptr;
  }
  return disposition;
}

} // namespace quenby
