#pragma once

#include "simulation/ScenarioContext.hpp"

#include <functional>
#include <map>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <vector>

namespace quenby {

/// The script lines the simulation understands and the fields of its `state` line, each added
/// by the subsystem it belongs to.
class ScenarioLineRegistry {
public:
  using Arguments = std::vector<std::string>;
  /// Carries out one line (the command word is `arguments.front()`); throws ScenarioLineError
  /// for a malformed one.
  using Line = std::function<void(ScenarioContext&, const Arguments&)>;
  /// Adds a subsystem's fields to the `state` object; `runtime` is null while no process runs.
  using StateFields =
      std::function<void(const ScenarioContext&, AppRuntime* runtime, nlohmann::ordered_json&)>;

  void addLine(std::string command, Line line);
  /// Fields appear in the order their writers were added.
  void addStateFields(StateFields fields) { stateFields_.push_back(std::move(fields)); }

  /// The line registered for `command`, or null.
  [[nodiscard]] const Line* line(std::string_view command) const;
  [[nodiscard]] const std::vector<StateFields>& stateFields() const { return stateFields_; }

private:
  std::map<std::string, Line, std::less<>> lines_;
  std::vector<StateFields> stateFields_;
};

/// Each subsystem's lines, defined beside the others in its own file.
void registerAppShellScenarioLines(ScenarioLineRegistry& registry);
void registerDataScenarioLines(ScenarioLineRegistry& registry);
void registerShortcutsScenarioLines(ScenarioLineRegistry& registry);
void registerSwitchingScenarioLines(ScenarioLineRegistry& registry);
void registerHUDScenarioLines(ScenarioLineRegistry& registry);
void registerUIScenarioLines(ScenarioLineRegistry& registry);

} // namespace quenby
