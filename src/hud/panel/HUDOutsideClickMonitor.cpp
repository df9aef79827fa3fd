#include "hud/panel/HUDOutsideClickMonitor.hpp"

#include <memory>
#include <utility>

namespace quenby {

HUDOutsideClickMonitor::HUDOutsideClickMonitor(HUDOutsideClickMonitorDependencies dependencies)
    : dependencies_(std::move(dependencies)) {}

HUDOutsideClickMonitor::~HUDOutsideClickMonitor() { stop(); }

std::optional<HUDMouseButton> HUDOutsideClickMonitor::buttonOf(std::uint64_t eventType) {
  switch (eventType) {
  case kLeftMouseDown:
    return HUDMouseButton::left;
  case kRightMouseDown:
    return HUDMouseButton::right;
  case kOtherMouseDown:
    return HUDMouseButton::other;
  default:
    return std::nullopt;
  }
}

void HUDOutsideClickMonitor::start(Handler handler) {
  stop();
  // Both monitors share the handler and the point conversion; neither outlives this object's
  // tokens, but the system may still be delivering one event while they are removed.
  auto shared = std::make_shared<Handler>(std::move(handler));
  auto screenPoint = dependencies_.screenPoint;
  auto deliver = [shared, screenPoint](HUDMonitoredEvent event) {
    if (const auto button = buttonOf(event.type)) {
      (*shared)(*button, screenPoint(event));
    }
  };
  localMonitor_ = dependencies_.addLocalMonitor(kMouseDownMask, [deliver](HUDMonitoredEvent event) {
    deliver(event);
    return event.handle;
  });
  globalMonitor_ = dependencies_.addGlobalMonitor(kMouseDownMask, deliver);
}

void HUDOutsideClickMonitor::stop() {
  if (auto token = std::exchange(localMonitor_, nullptr)) {
    dependencies_.removeMonitor(token);
  }
  if (auto token = std::exchange(globalMonitor_, nullptr)) {
    dependencies_.removeMonitor(token);
  }
}

} // namespace quenby
