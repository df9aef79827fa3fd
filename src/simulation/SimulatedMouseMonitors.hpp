#pragma once

#include "hud/panel/HUDOutsideClickMonitorDependencies.hpp"
#include "simulation/SimulatedHUDPanel.hpp"

#include <map>
#include <memory>

namespace quenby {

/// The system's mouse-event monitors of one simulated process, and the clicks the script makes:
/// a button press over the visible HUD panel is an event of this application (its local
/// monitors see it, and a left press goes on to the panel); anywhere else it belongs to another
/// application (the global monitors see it).
class SimulatedMouseMonitors : public std::enable_shared_from_this<SimulatedMouseMonitors> {
public:
  enum class Button { left, right, other };

  /// The operations over this object; they share its ownership. Call only on an object owned
  /// by a shared pointer.
  [[nodiscard]] HUDOutsideClickMonitorDependencies dependencies();

  /// A press and a release of `button`, at `down` and then at `up`; `panel` may be null.
  void click(Point down, Point up, Button button, SimulatedHUDPanel* panel);

private:
  struct MouseEvent {
    Point point;
  };

  template <typename Handler> struct Monitor {
    std::uint64_t mask;
    Handler handler;
  };
  template <typename Handler> using Monitors = std::map<const void*, Monitor<Handler>>;

  template <typename Handler>
  static void tell(const Monitors<Handler>& monitors, std::uint64_t type, Point point);

  Monitors<HUDOutsideClickMonitorDependencies::LocalHandler> localMonitors_;
  Monitors<HUDOutsideClickMonitorDependencies::GlobalHandler> globalMonitors_;
};

} // namespace quenby
