#pragma once

#include "app/PlatformServices.hpp"
#include "simulation/ScenarioEventRecorder.hpp"
#include "simulation/SimulatedApplicationTerminator.hpp"
#include "simulation/SimulatedHUDPanel.hpp"
#include "simulation/SimulatedHotKeyBackend.hpp"
#include "simulation/SimulatedKeyboardEventTap.hpp"
#include "simulation/SimulatedMouseMonitors.hpp"
#include "simulation/SimulatedWorld.hpp"

namespace quenby {

/// One simulated process: its adapters, and the system pieces the script acts through: the hot
/// keys, the keyboard tap, the HUD's panel, the mouse monitors and its own request to quit.
struct SimulatedProcess {
  PlatformServices services;
  std::shared_ptr<SimulatedHotKeyBackend> hotKeys;
  std::shared_ptr<SimulatedKeyboardEventTap> eventTap;
  std::shared_ptr<SimulatedHUDPanelFactory> hudPanels;
  std::shared_ptr<SimulatedMouseMonitors> mouse;
  std::shared_ptr<SimulatedApplicationTerminator> terminator;
};

/// The adapters of one simulated process, over the world that outlives it. `world` and
/// `recorder` must outlive the returned services.
[[nodiscard]] SimulatedProcess makeSimulatedProcess(SimulatedWorld& world,
                                                    const ScenarioEventRecorder& recorder);
[[nodiscard]] inline PlatformServices
makeSimulatedPlatformServices(SimulatedWorld& world, const ScenarioEventRecorder& recorder) {
  return makeSimulatedProcess(world, recorder).services;
}

} // namespace quenby
