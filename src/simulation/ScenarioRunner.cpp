#include "simulation/ScenarioRunner.hpp"

#include "app/AppRuntime.hpp"
#include "simulation/ScenarioArguments.hpp"
#include "simulation/ScenarioLineTokenizer.hpp"

namespace quenby {

ScenarioRunner::ScenarioRunner(ScenarioEventSink& sink, std::string scriptDirectory)
    : context_(sink, std::move(scriptDirectory)) {
  // Also the order of the state line's fields.
  registerAppShellScenarioLines(lines_);
  registerShortcutsScenarioLines(lines_);
  registerSwitchingScenarioLines(lines_);
  registerDataScenarioLines(lines_);
  registerHUDScenarioLines(lines_);
  registerUIScenarioLines(lines_);
}

ScenarioRunner::~ScenarioRunner() = default;

int ScenarioRunner::run(std::istream& script) {
  std::string line;
  int number = 0;
  while (std::getline(script, line)) {
    ++number;
    const std::size_t start = line.find_first_not_of(" \t\r");
    if (start == std::string::npos) {
      continue;
    }
    if (line[start] == '#') {
      if (line.compare(start, 2, "#>") == 0 && commentHandler_) {
        const std::size_t text = line.find_first_not_of(' ', start + 2);
        commentHandler_(text == std::string::npos ? std::string_view() : line.substr(text));
      }
      continue;
    }
    try {
      auto arguments = tokenizeScenarioLine(line);
      if (!arguments) {
        throw ScenarioLineError{arguments.error()};
      }
      runLine(*arguments);
      // Work the program handed to the main queue runs before the next line.
      context_.world().scheduler()->runPending();
      context_.finishLine();
    } catch (const ScenarioLineError& failure) {
      error_ = "line " + std::to_string(number) + ": " + failure.message;
      return 2;
    } catch (const std::exception& failure) {
      // The simulated world refused (a missing bundle, an unreadable file): the line is wrong.
      error_ = "line " + std::to_string(number) + ": " +
               context_.world().withoutDiskPrefix(failure.what());
      return 2;
    }
  }
  return 0;
}

void ScenarioRunner::runLine(const ScenarioLineRegistry::Arguments& arguments) {
  const std::string& command = arguments.front();
  if (command == "state") {
    stateLine(arguments);
    return;
  }
  if (const auto* line = lines_.line(command)) {
    (*line)(context_, arguments);
    return;
  }
  throw ScenarioLineError{"unknown line \"" + command + "\""};
}

void ScenarioRunner::stateLine(const ScenarioLineRegistry::Arguments& arguments) {
  expectArgumentCount(arguments, 1, 1, "state");
  nlohmann::ordered_json fields = nlohmann::ordered_json::object();
  const auto runtime = context_.runtime();
  for (const auto& writeFields : lines_.stateFields()) {
    writeFields(context_, runtime.get(), fields);
  }
  context_.recorder().emit("state", std::move(fields));
}

} // namespace quenby
