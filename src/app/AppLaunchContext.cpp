#include "app/AppLaunchContext.hpp"

namespace quenby {

AppLaunchContext AppLaunchContext::fromEnvironment(const Environment& environment) {
  return {.includesMenuBarExtra = !environment.contains("XCTestConfigurationFilePath")};
}

} // namespace quenby
