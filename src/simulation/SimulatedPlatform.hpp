#pragma once

#include "app/PlatformServices.hpp"
#include "simulation/ScenarioEventRecorder.hpp"
#include "simulation/SimulatedHotKeyBackend.hpp"
#include "simulation/SimulatedWorld.hpp"

namespace quenby {

/// One simulated process: its adapters, and the hot keys the script presses through.
struct SimulatedProcess {
  PlatformServices services;
  std::shared_ptr<SimulatedHotKeyBackend> hotKeys;
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
