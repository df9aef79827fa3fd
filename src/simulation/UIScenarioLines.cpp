// The system settings the windows and the shortcut animation read.

#include "simulation/ScenarioArguments.hpp"
#include "simulation/ScenarioLineRegistry.hpp"

namespace quenby {

void registerUIScenarioLines(ScenarioLineRegistry& registry) {
  registry.addLine("reduce-motion",
                   [](ScenarioContext& context, const ScenarioLineRegistry::Arguments& arguments) {
                     expectArgumentCount(arguments, 2, 2, "reduce-motion on|off");
                     if (arguments[1] != "on" && arguments[1] != "off") {
                       throw ScenarioLineError{"usage: reduce-motion on|off"};
                     }
                     context.world().setReducesMotion(arguments[1] == "on");
                   });
}

} // namespace quenby
