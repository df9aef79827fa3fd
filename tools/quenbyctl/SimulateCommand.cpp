#include "quenbyctl/SimulateCommand.hpp"

#include "simulation/JsonLinesEventWriter.hpp"
#include "simulation/LibplistPropertyListEncoder.hpp"
#include "simulation/NarratingEventWriter.hpp"
#include "simulation/ScenarioRunner.hpp"

#include <exception>
#include <filesystem>
#include <fstream>
#include <memory>
#include <optional>
#include <ostream>
#include <string_view>

namespace quenby {
namespace {

constexpr std::string_view kUsage =
    "usage: quenbyctl simulate [--narrate] [--save-defaults FILE] SCRIPT   (SCRIPT is a file, or - "
    "for stdin)\n";

/// The simulated user defaults as a binary property list, as the app's preferences file is kept.
/// Paths on the simulated disk are written as the script names them, as the `write` lines print
/// them, so that the file describes the script's Mac rather than this run's temporary folder.
bool saveDefaults(const SimulatedWorld& world, const std::string& path) {
  PropertyListValue::Dictionary domain;
  for (const auto& [key, value] : world.defaults()->entries()) {
    if (const auto* text = value.string()) {
      domain.emplace(key, world.withoutDiskPrefix(*text));
    } else if (const auto* bytes = value.data()) {
      const auto shown = world.withoutDiskPrefix(std::string(bytes->begin(), bytes->end()));
      domain.emplace(key, PropertyListValue::Data(shown.begin(), shown.end()));
    } else {
      domain.emplace(key, value);
    }
  }
  const auto bytes =
      LibplistPropertyListEncoder::encodeBinary(PropertyListValue(std::move(domain)));
  std::ofstream file(path, std::ios::binary | std::ios::trunc);
  file.write(reinterpret_cast<const char*>(bytes.data()),
             static_cast<std::streamsize>(bytes.size()));
  file.close();
  return !bytes.empty() && static_cast<bool>(file);
}

} // namespace

int runSimulateCommand(const std::vector<std::string>& arguments, std::istream& in,
                       std::ostream& out, std::ostream& err) {
  bool narrate = false;
  std::string scriptName;
  std::optional<std::string> defaultsFile;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& argument = arguments[i];
    if (argument == "--narrate") {
      narrate = true;
    } else if (argument == "--save-defaults" && i + 1 < arguments.size()) {
      defaultsFile = arguments[++i];
    } else if (scriptName.empty() && (argument == "-" || !argument.starts_with("--"))) {
      scriptName = argument;
    } else {
      err << kUsage;
      return 2;
    }
  }
  if (scriptName.empty()) {
    err << kUsage;
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
      return status;
    }
    if (defaultsFile && !saveDefaults(runner.world(), *defaultsFile)) {
      err << "quenbyctl simulate: cannot write " << *defaultsFile << "\n";
      return 1;
    }
    return 0;
  } catch (const std::exception& failure) {
    err << "quenbyctl simulate: " << failure.what() << "\n";
    return 1;
  }
}

} // namespace quenby
