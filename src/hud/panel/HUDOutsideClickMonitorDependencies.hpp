#pragma once

#include "base/Geometry.hpp"

#include <cstdint>
#include <functional>
#include <memory>

namespace quenby {

/// Which mouse button went down.
enum class HUDMouseButton : std::uint8_t { left, right, other };

/// A mouse event as a system monitor hands it over: its type number and the system's event,
/// which only the platform reads.
struct HUDMonitoredEvent {
  std::uint64_t type = 0;
  const void* handle = nullptr;
};

/// Keeps one installed system monitor alive; handed back to remove it.
using HUDEventMonitorToken = std::shared_ptr<void>;

/// The system's mouse-event monitors. A local monitor sees the events sent to this application
/// and returns the event to deliver (the handle it was given, or null to swallow it); a global
/// monitor sees those sent to every other application and cannot change them. Main thread only.
struct HUDOutsideClickMonitorDependencies {
  using LocalHandler = std::function<const void*(HUDMonitoredEvent)>;
  using GlobalHandler = std::function<void(HUDMonitoredEvent)>;

  std::function<HUDEventMonitorToken(std::uint64_t mask, LocalHandler handler)> addLocalMonitor;
  std::function<HUDEventMonitorToken(std::uint64_t mask, GlobalHandler handler)> addGlobalMonitor;
  std::function<void(const HUDEventMonitorToken& token)> removeMonitor;
  /// Where the event happened, in the global screen space.
  std::function<Point(HUDMonitoredEvent event)> screenPoint;

  /// Monitors that never see an event.
  [[nodiscard]] static HUDOutsideClickMonitorDependencies inert() {
    return {
        .addLocalMonitor = [](std::uint64_t, LocalHandler) { return HUDEventMonitorToken(); },
        .addGlobalMonitor = [](std::uint64_t, GlobalHandler) { return HUDEventMonitorToken(); },
        .removeMonitor = [](const HUDEventMonitorToken&) {},
        .screenPoint = [](HUDMonitoredEvent) { return Point{}; },
    };
  }
};

} // namespace quenby
