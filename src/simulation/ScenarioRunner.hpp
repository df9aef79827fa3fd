#pragma once

#include "simulation/ScenarioContext.hpp"
#include "simulation/ScenarioLineRegistry.hpp"

#include <functional>
#include <istream>
#include <string>
#include <string_view>
#include <vector>

namespace quenby {

/// Runs a scenario script against the real runtime graph on a simulated Mac, line by line,
/// reporting every effect to the sink in the order it happens. Work the program hands to the
/// main queue "later" runs before the next line, at the same virtual time.
class ScenarioRunner {
public:
  /// Relative file names in the script (`default … data @FILE`, `dock plist FILE`) are taken from
  /// `scriptDirectory`. Every subsystem's lines are registered here.
  ScenarioRunner(ScenarioEventSink& sink, std::string scriptDirectory);
  ScenarioRunner(const ScenarioRunner&) = delete;
  ScenarioRunner& operator=(const ScenarioRunner&) = delete;
  ~ScenarioRunner();

  /// 0 once the script has run to its end; 2 for a malformed line, with `error()` saying
  /// "line N: what is wrong".
  int run(std::istream& script);
  [[nodiscard]] const std::string& error() const { return error_; }
  /// The simulated Mac as the script left it.
  [[nodiscard]] const SimulatedWorld& world() const { return context_.world(); }

  /// Receives the text of "#>" comment lines, which a narrated run prints as headings.
  void setCommentHandler(std::function<void(std::string_view)> handler) {
    commentHandler_ = std::move(handler);
  }

private:
  void runLine(const ScenarioLineRegistry::Arguments& arguments);
  void stateLine(const ScenarioLineRegistry::Arguments& arguments);

  ScenarioContext context_;
  ScenarioLineRegistry lines_;
  std::function<void(std::string_view)> commentHandler_;
  std::string error_;
};

} // namespace quenby
