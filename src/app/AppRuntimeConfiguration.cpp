#include "app/AppRuntimeConfiguration.hpp"

namespace quenby {

AppRuntimeConfiguration AppRuntimeConfiguration::fromEnvironment(const Environment& environment) {
  const auto found = environment.find("QUENBY_RUN_HUD_PERFORMANCE_TESTS");
  return {.isHUDPerformanceMeasurement = found != environment.end() && found->second == "1"};
}

} // namespace quenby
