#pragma once

#include "app/AppCoordinator.hpp"
#include "app/AppRuntime.hpp"
#include "base/Environment.hpp"

#include <memory>

namespace quenby {

/// Builds the coordinator the way the application does at launch: the configuration from the
/// environment, then the runtime graph from the platform's adapters. `runtime`, when given,
/// receives a weak handle on the graph (the simulation reads state through it).
[[nodiscard]] std::unique_ptr<AppCoordinator>
makeAppCoordinator(PlatformServices services, const Environment& environment,
                   std::weak_ptr<AppRuntime>* runtime = nullptr);

} // namespace quenby
