#pragma once

#include "base/FileURL.hpp"
#include "simulation/ScenarioEventRecorder.hpp"
#include "simulation/SimulatedApplicationTerminator.hpp"
#include "simulation/SimulatedHUDPanel.hpp"
#include "simulation/SimulatedHotKeyBackend.hpp"
#include "simulation/SimulatedKeyboardEventTap.hpp"
#include "simulation/SimulatedMouseMonitors.hpp"
#include "simulation/SimulatedWorld.hpp"

#include <memory>
#include <string>
#include <string_view>

namespace quenby {

class AppCoordinator;
class AppLaunchController;
class AppRuntime;

/// What every scenario line works on: the simulated Mac, the recorder of effects and the
/// application process, if one is running.
class ScenarioContext {
public:
  /// Relative file names in the script are taken from `scriptDirectory`.
  ScenarioContext(ScenarioEventSink& sink, std::string scriptDirectory);
  ScenarioContext(const ScenarioContext&) = delete;
  ScenarioContext& operator=(const ScenarioContext&) = delete;
  ~ScenarioContext();

  [[nodiscard]] SimulatedWorld& world() { return world_; }
  [[nodiscard]] const SimulatedWorld& world() const { return world_; }
  [[nodiscard]] ScenarioEventRecorder& recorder() { return recorder_; }

  /// Starts the application the way macOS launches it, from the world's environment.
  void launch();
  /// Quits the running application; nothing happens when none runs.
  void terminate();
  /// Quits the running application if it asked to during the line just run.
  void finishLine();
  [[nodiscard]] bool isLaunched() const { return application_ != nullptr; }
  /// "notLaunched", the coordinator's state, or "stopped" once a process has ended.
  [[nodiscard]] std::string_view coordinatorState() const;
  /// The running process's graph, or null.
  [[nodiscard]] std::shared_ptr<AppRuntime> runtime() const;
  /// The running process's hot keys, or a line error saying that `line` needs a launched
  /// application.
  [[nodiscard]] SimulatedHotKeyBackend& requireHotKeys(std::string_view line) const;
  /// The running process's keyboard tap as the system sees it; null when no process runs.
  [[nodiscard]] SimulatedKeyboardEventTap* eventTap() const { return eventTap_.get(); }
  /// The running process's HUD panel; null when no process runs or it has none.
  [[nodiscard]] SimulatedHUDPanel* hudPanel() const {
    return hudPanels_ ? hudPanels_->panel() : nullptr;
  }
  /// The running process's mouse monitors; null when no process runs.
  [[nodiscard]] SimulatedMouseMonitors* mouse() const { return mouse_.get(); }
  /// The running graph, or a line error saying that `line` needs a launched application.
  [[nodiscard]] std::shared_ptr<AppRuntime> requireRuntime(std::string_view line) const;

  /// A script's absolute path as a real URL on the simulated disk.
  [[nodiscard]] FileURL diskURL(const std::string& scriptPath) const;
  /// A file named by the script, relative to the script's directory.
  [[nodiscard]] std::string resolveScriptFile(const std::string& name) const;

private:
  SimulatedWorld world_;
  ScenarioEventRecorder recorder_;
  std::string scriptDirectory_;
  std::unique_ptr<AppLaunchController> application_;
  AppCoordinator* coordinator_ = nullptr;
  std::weak_ptr<AppRuntime> runtime_;
  std::shared_ptr<SimulatedHotKeyBackend> hotKeys_;
  std::shared_ptr<SimulatedKeyboardEventTap> eventTap_;
  std::shared_ptr<SimulatedHUDPanelFactory> hudPanels_;
  std::shared_ptr<SimulatedMouseMonitors> mouse_;
  std::shared_ptr<SimulatedApplicationTerminator> terminator_;
  bool hasTerminated_ = false;
};

} // namespace quenby
