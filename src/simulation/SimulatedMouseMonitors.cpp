#include "simulation/SimulatedMouseMonitors.hpp"

namespace quenby {
namespace {

// The system's event types of the three button presses.
constexpr std::uint64_t kLeftMouseDown = 1;
constexpr std::uint64_t kRightMouseDown = 3;
constexpr std::uint64_t kOtherMouseDown = 25;

// Each kind of event the mask names by its bit.
bool masks(std::uint64_t mask, std::uint64_t type) { return ((mask >> type) & 1U) != 0; }

} // namespace

HUDOutsideClickMonitorDependencies SimulatedMouseMonitors::dependencies() {
  const auto self = shared_from_this();
  return {
      .addLocalMonitor =
          [this, self](std::uint64_t mask,
                       HUDOutsideClickMonitorDependencies::LocalHandler handler) {
            auto token = std::make_shared<char>();
            localMonitors_.emplace(token.get(),
                                   Monitor<HUDOutsideClickMonitorDependencies::LocalHandler>{
                                       mask, std::move(handler)});
            return HUDEventMonitorToken(token);
          },
      .addGlobalMonitor =
          [this, self](std::uint64_t mask,
                       HUDOutsideClickMonitorDependencies::GlobalHandler handler) {
            auto token = std::make_shared<char>();
            globalMonitors_.emplace(token.get(),
                                    Monitor<HUDOutsideClickMonitorDependencies::GlobalHandler>{
                                        mask, std::move(handler)});
            return HUDEventMonitorToken(token);
          },
      .removeMonitor =
          [this, self](const HUDEventMonitorToken& token) {
            localMonitors_.erase(token.get());
            globalMonitors_.erase(token.get());
          },
      .screenPoint =
          [](HUDMonitoredEvent event) {
            return static_cast<const MouseEvent*>(event.handle)->point;
          },
  };
}

void SimulatedMouseMonitors::click(Point down, Point up, Button button, SimulatedHUDPanel* panel) {
  const bool onPanel = panel != nullptr && panel->isVisible() && panel->frame().contains(down);
  const std::uint64_t type = button == Button::left    ? kLeftMouseDown
                             : button == Button::right ? kRightMouseDown
                                                       : kOtherMouseDown;
  if (onPanel) {
    tell(localMonitors_, type, down);
  } else {
    tell(globalMonitors_, type, down);
  }
  if (onPanel && button == Button::left && panel->isVisible()) {
    panel->leftMouseDown(down);
    panel->leftMouseUp(up);
  }
}

template <typename Handler>
void SimulatedMouseMonitors::tell(const Monitors<Handler>& monitors, std::uint64_t type,
                                  Point point) {
  const MouseEvent event{point};
  // A copy: a handler may remove monitors, its own among them.
  const auto current = monitors;
  for (const auto& [token, monitor] : current) {
    if (masks(monitor.mask, type)) {
      monitor.handler(HUDMonitoredEvent{type, &event});
    }
  }
}

} // namespace quenby
