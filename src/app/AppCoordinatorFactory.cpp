#include "app/AppCoordinatorFactory.hpp"

#include <utility>

namespace quenby {

std::unique_ptr<AppCoordinator> makeAppCoordinator(PlatformServices services,
                                                   const Environment& environment,
                                                   std::weak_ptr<AppRuntime>* runtime) {
  const auto configuration = AppRuntimeConfiguration::fromEnvironment(environment);
  auto graph = std::make_shared<AppRuntime>(std::move(services), configuration);
  if (runtime != nullptr) {
    *runtime = graph;
  }
  AppCoordinatorLifecycle lifecycle = graph->lifecycle();
  MenuBarExtraStore* menuBarExtra = &graph->menuBar().store();
  ApplicationInstaller* installer = &graph->ui().applicationInstaller();
  return std::make_unique<AppCoordinator>(configuration, std::move(lifecycle), std::move(graph),
                                          menuBarExtra, installer);
}

} // namespace quenby
