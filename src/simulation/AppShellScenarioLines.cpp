// The process and the world it starts in: user defaults, the environment, time, launch and quit.

#include "simulation/ScenarioArguments.hpp"
#include "simulation/ScenarioLineRegistry.hpp"

#include <chrono>

namespace quenby {
namespace {

using Arguments = ScenarioLineRegistry::Arguments;

void defaultLine(ScenarioContext& context, const Arguments& arguments) {
  expectArgumentCount(arguments, 3, 4, "default KEY TYPE VALUE");
  const std::string& key = arguments[1];
  const std::string& type = arguments[2];
  auto& defaults = *context.world().defaults();
  if (type == "absent") {
    expectArgumentCount(arguments, 3, 3, "default KEY absent");
    defaults.remove(key);
    return;
  }
  expectArgumentCount(arguments, 4, 4, "default KEY TYPE VALUE");
  const std::string& text = arguments[3];
  if (type == "data" && text.starts_with('@')) {
    defaults.set(key, readFileBytes(context.resolveScriptFile(text.substr(1))));
    return;
  }
  defaults.set(key, parseDefaultValue(type, text));
}

void waitLine(ScenarioContext& context, const Arguments& arguments) {
  expectArgumentCount(arguments, 2, 2, "wait MS");
  const std::int64_t milliseconds = parseInteger(arguments[1]);
  if (milliseconds < 0) {
    throw ScenarioLineError{"wait needs a duration of 0 ms or more"};
  }
  context.world().scheduler()->advanceBy(std::chrono::milliseconds(milliseconds));
}

} // namespace

void registerAppShellScenarioLines(ScenarioLineRegistry& registry) {
  registry.addLine("default", defaultLine);
  registry.addLine("env", [](ScenarioContext& context, const Arguments& arguments) {
    expectArgumentCount(arguments, 3, 3, "env NAME VALUE");
    context.world().environment()[arguments[1]] = arguments[2];
  });
  registry.addLine("wait", waitLine);
  registry.addLine("launch", [](ScenarioContext& context, const Arguments& arguments) {
    expectArgumentCount(arguments, 1, 1, "launch");
    context.launch();
  });
  registry.addLine("terminate", [](ScenarioContext& context, const Arguments& arguments) {
    expectArgumentCount(arguments, 1, 1, "terminate");
    context.terminate();
  });
  registry.addStateFields(
      [](const ScenarioContext& context, AppRuntime*, nlohmann::ordered_json& fields) {
        fields["coordinator"] = context.coordinatorState();
      });
}

} // namespace quenby
