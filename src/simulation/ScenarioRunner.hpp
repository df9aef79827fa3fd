#pragma once

#include "base/FileURL.hpp"
#include "simulation/ScenarioEventRecorder.hpp"
#include "simulation/SimulatedWorld.hpp"

#include <functional>
#include <istream>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace quenby {

class AppLaunchController;
class AppCoordinator;
class AppRuntime;

/// Runs a scenario script against the real runtime graph on a simulated Mac, line by line,
/// reporting every effect to the sink in the order it happens. Work the program hands to the
/// main queue "later" runs before the next line, at the same virtual time.
class ScenarioRunner {
public:
  /// Relative file names in the script (`default … data @FILE`, `dock plist FILE`) are taken from
  /// `scriptDirectory`.
  ScenarioRunner(ScenarioEventSink& sink, std::string scriptDirectory);
  ScenarioRunner(const ScenarioRunner&) = delete;
  ScenarioRunner& operator=(const ScenarioRunner&) = delete;
  ~ScenarioRunner();

  /// 0 once the script has run to its end; 2 for a malformed line, with `error()` saying
  /// "line N: what is wrong".
  int run(std::istream& script);
  [[nodiscard]] const std::string& error() const { return error_; }

  /// Receives the text of "#>" comment lines, which a narrated run prints as headings.
  void setCommentHandler(std::function<void(std::string_view)> handler) {
    commentHandler_ = std::move(handler);
  }

private:
  using Arguments = std::vector<std::string>;

  void runLine(const Arguments& arguments);
  void settle();

  void defaultLine(const Arguments& arguments);
  void envLine(const Arguments& arguments);
  void screenLine(const Arguments& arguments);
  void mouseLine(const Arguments& arguments);
  void launchLine(const Arguments& arguments);
  void terminateLine(const Arguments& arguments);
  void waitLine(const Arguments& arguments);
  void prefLine(const Arguments& arguments);
  void stateLine(const Arguments& arguments);
  void appLine(const Arguments& arguments);
  void appPlistLine(const Arguments& arguments);
  void appRemoveLine(const Arguments& arguments);
  void appMoveLine(const Arguments& arguments);
  void appTouchLine(const Arguments& arguments);
  void dockLine(const Arguments& arguments);
  void dockNotifyLine(const Arguments& arguments);

  /// A script's absolute path as a real URL on the simulated disk.
  [[nodiscard]] FileURL diskURL(const std::string& scriptPath) const;

  [[nodiscard]] std::string resolveScriptFile(const std::string& name) const;
  [[nodiscard]] std::shared_ptr<AppRuntime> runningRuntime() const;

  SimulatedWorld world_;
  ScenarioEventRecorder recorder_;
  std::string scriptDirectory_;
  std::unique_ptr<AppLaunchController> application_;
  AppCoordinator* coordinator_ = nullptr;
  std::weak_ptr<AppRuntime> runtime_;
  bool hasTerminated_ = false;
  std::function<void(std::string_view)> commentHandler_;
  std::string error_;
};

} // namespace quenby
