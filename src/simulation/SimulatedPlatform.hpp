#pragma once

#include "app/PlatformServices.hpp"
#include "simulation/ScenarioEventRecorder.hpp"
#include "simulation/SimulatedWorld.hpp"

namespace quenby {

/// The adapters of one simulated process, over the world that outlives it. `world` and
/// `recorder` must outlive the returned services.
[[nodiscard]] PlatformServices makeSimulatedPlatformServices(SimulatedWorld& world,
                                                             const ScenarioEventRecorder& recorder);

} // namespace quenby
