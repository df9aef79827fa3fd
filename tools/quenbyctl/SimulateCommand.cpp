#include "quenbyctl/SimulateCommand.hpp"

#include "simulation/JsonLinesEventWriter.hpp"
#include "simulation/NarratingEventWriter.hpp"
#include "simulation/ScenarioRunner.hpp"

#include <exception>
#include <filesystem>
#include <fstream>
#include <memory>
#include <ostream>

namespace quenby {

int runSimulateCommand(const std::vector<std::string>& arguments, std::istream& in,
                       std::ostream& out, std::ostream& err) {
  bool narrate = false;
  std::string scriptName;
  for (const auto& argument : arguments) {
    if (argument == "--narrate") {
      narrate = true;
    } else if (scriptName.empty() && (argument == "-" || !argument.starts_with("--"))) {
      scriptName = argument;
    } else {
      err << "usage: quenbyctl simulate [--narrate] SCRIPT   (SCRIPT is a file, or - for stdin)\n";
      return 2;
    }
  }
  if (scriptName.empty()) {
    err << "usage: quenbyctl simulate [--narrate] SCRIPT   (SCRIPT is a file, or - for stdin)\n";
    return 2;
  }

  std::ifstream file;
  std::istream* script = &in;
  if (scriptName != "-") {
    file.open(scriptName);
    if (!file) {
      err << "quenbyctl simulate: cannot read " << scriptName << "\n";
      return 1;
    }
    script = &file;
  }
  // Files named in the script are found beside it (or from the working directory for stdin).
  const std::filesystem::path parent = std::filesystem::path(scriptName).parent_path();
  const std::filesystem::path directory = scriptName == "-" || parent.empty() ? "." : parent;

  try {
    JsonLinesEventWriter json(out);
    NarratingEventWriter narration(out);
    ScenarioRunner runner(narrate ? static_cast<ScenarioEventSink&>(narration) : json,
                          directory.string());
    if (narrate) {
      runner.setCommentHandler([&narration](std::string_view text) { narration.heading(text); });
    }
    const int status = runner.run(*script);
    if (status != 0) {
      err << runner.error() << "\n";
    }
    return status;
  } catch (const std::exception& failure) {
    err << "quenbyctl simulate: " << failure.what() << "\n";
    return 1;
  }
}

} // namespace quenby
