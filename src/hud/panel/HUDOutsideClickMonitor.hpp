#pragma once

#include "hud/panel/HUDOutsideClickMonitorDependencies.hpp"

#include <cstdint>
#include <functional>
#include <optional>

namespace quenby {

/// Watches every mouse-button press, in this application and in all others, while the HUD is
/// up, so that a click anywhere else can dismiss it. It only watches: every click still reaches
/// the window it was meant for. Main thread only.
class HUDOutsideClickMonitor {
public:
  using Handler = std::function<void(HUDMouseButton button, Point screenPoint)>;

  /// Left, right and other mouse down.
  static constexpr std::uint64_t kMouseDownMask = 0x200000A;
  static constexpr std::uint64_t kLeftMouseDown = 1;
  static constexpr std::uint64_t kRightMouseDown = 3;
  static constexpr std::uint64_t kOtherMouseDown = 25;

  explicit HUDOutsideClickMonitor(HUDOutsideClickMonitorDependencies dependencies);
  HUDOutsideClickMonitor(const HUDOutsideClickMonitor&) = delete;
  HUDOutsideClickMonitor& operator=(const HUDOutsideClickMonitor&) = delete;
  ~HUDOutsideClickMonitor();

  /// Replaces any monitors already installed.
  void start(Handler handler);
  void stop();
  [[nodiscard]] bool isMonitoring() const { return localMonitor_ || globalMonitor_; }

  /// The button of a mouse-down event type; none for any other type.
  [[nodiscard]] static std::optional<HUDMouseButton> buttonOf(std::uint64_t eventType);

private:
  HUDOutsideClickMonitorDependencies dependencies_;
  HUDEventMonitorToken localMonitor_;
  HUDEventMonitorToken globalMonitor_;
};

} // namespace quenby
