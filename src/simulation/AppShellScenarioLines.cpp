// The process and the world it starts in: user defaults, the environment, time, launch and quit;
// the menu bar's menu and the alerts it raises.

#include "app/AppRuntime.hpp"
#include "simulation/ScenarioArguments.hpp"
#include "simulation/ScenarioLineRegistry.hpp"

#include <chrono>
#include <utility>

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

void menuLine(ScenarioContext& context, const Arguments& arguments) {
  constexpr const char* usage = "menu toggle-hud|retry-hud|retry-digits|open-accessibility|"
                                "open-input-monitoring|settings|quit";
  expectArgumentCount(arguments, 2, 2, usage);
  static constexpr std::pair<std::string_view, MenuBarCommand> kCommands[] = {
      {"toggle-hud", MenuBarCommand::toggleHUD()},
      {"retry-hud", MenuBarCommand::retryHUD()},
      {"retry-digits", MenuBarCommand::retryOptionDigits()},
      {"open-accessibility",
       MenuBarCommand::openPermissionSettings(EventTapPermissionKind::accessibility)},
      {"open-input-monitoring",
       MenuBarCommand::openPermissionSettings(EventTapPermissionKind::inputMonitoring)},
      {"settings", MenuBarCommand::showSettings()},
      {"quit", MenuBarCommand::quit()},
  };
  for (const auto& [name, command] : kCommands) {
    if (arguments[1] == name) {
      // Choosing an item opens the menu first.
      const MenuBarExtraStore& store = context.requireRuntime("menu")->menuBar().store();
      store.menuWillOpen();
      store.perform(command);
      return;
    }
  }
  throw ScenarioLineError{"\"" + arguments[1] + "\" is not a menu command: " + usage};
}

void alertLine(ScenarioContext& context, const Arguments& arguments) {
  constexpr const char* usage = "alert continue|cancel";
  expectArgumentCount(arguments, 2, 2, usage);
  if (arguments[1] != "continue" && arguments[1] != "cancel") {
    throw ScenarioLineError{"expected continue or cancel: " + std::string(usage)};
  }
  context.world().alertAnswers().push_back(arguments[1] == "continue");
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
  registry.addLine("menu", menuLine);
  registry.addLine("alert", alertLine);
  registry.addStateFields(
      [](const ScenarioContext& context, AppRuntime*, nlohmann::ordered_json& fields) {
        fields["coordinator"] = context.coordinatorState();
      });
}

} // namespace quenby
