#include "simulation/ScenarioContext.hpp"

#include "app/AppCoordinatorFactory.hpp"
#include "app/AppLaunchController.hpp"
#include "simulation/ScenarioArguments.hpp"
#include "simulation/SimulatedPlatform.hpp"
#include "simulation/SimulatedStatusItemPresenter.hpp"

namespace quenby {

ScenarioContext::ScenarioContext(ScenarioEventSink& sink, std::string scriptDirectory)
    : recorder_(sink, *world_.scheduler()), scriptDirectory_(std::move(scriptDirectory)) {}

ScenarioContext::~ScenarioContext() = default;

void ScenarioContext::launch() {
  if (application_) {
    throw ScenarioLineError{"the application is already running"};
  }
  const Environment environment = world_.environment();
  application_ = std::make_unique<AppLaunchController>(
      AppLaunchContext::fromEnvironment(environment),
      [this, environment]() -> std::unique_ptr<AppCoordinating> {
        SimulatedProcess process = makeSimulatedProcess(world_, recorder_);
        hotKeys_ = process.hotKeys;
        eventTap_ = process.eventTap;
        hudPanels_ = process.hudPanels;
        mouse_ = process.mouse;
        terminator_ = process.terminator;
        auto coordinator = makeAppCoordinator(std::move(process.services), environment, &runtime_);
        coordinator_ = coordinator.get();
        return coordinator;
      },
      [this](MenuBarExtraStore& store) {
        return std::make_unique<SimulatedStatusItemPresenter>(store, recorder_);
      });
  hasTerminated_ = false;
  application_->applicationDidFinishLaunching();
  // Registration passes made while starting are told before launching is.
  if (hotKeys_) {
    hotKeys_->flush();
  }
  recorder_.emit("launched", {{"menuBarExtra", application_->hasStatusItem()}});
}

void ScenarioContext::terminate() {
  if (!application_) {
    return; // nothing running: quitting twice does nothing
  }
  application_->applicationWillTerminate();
  if (hotKeys_) {
    hotKeys_->flush();
  }
  application_.reset();
  hotKeys_.reset();
  eventTap_.reset();
  hudPanels_.reset();
  mouse_.reset();
  terminator_.reset();
  coordinator_ = nullptr;
  hasTerminated_ = true;
  recorder_.emit("terminated");
}

void ScenarioContext::finishLine() {
  if (terminator_ && terminator_->isRequested()) {
    terminate();
  }
}

std::string_view ScenarioContext::coordinatorState() const {
  if (coordinator_ != nullptr) {
    return AppCoordinator::stateName(coordinator_->state());
  }
  return hasTerminated_ ? "stopped" : "notLaunched";
}

std::shared_ptr<AppRuntime> ScenarioContext::runtime() const {
  return application_ ? runtime_.lock() : nullptr;
}

SimulatedHotKeyBackend& ScenarioContext::requireHotKeys(std::string_view line) const {
  if (!application_ || !hotKeys_) {
    throw ScenarioLineError{std::string(line) + " needs a launched application"};
  }
  return *hotKeys_;
}

std::shared_ptr<AppRuntime> ScenarioContext::requireRuntime(std::string_view line) const {
  auto running = runtime();
  if (!running) {
    throw ScenarioLineError{std::string(line) + " needs a launched application"};
  }
  return running;
}

FileURL ScenarioContext::diskURL(const std::string& scriptPath) const {
  if (scriptPath.empty() || scriptPath.front() != '/') {
    throw ScenarioLineError{"\"" + scriptPath + "\" is not an absolute path"};
  }
  return FileURL::fromPath(world_.hostPath(scriptPath));
}

std::string ScenarioContext::resolveScriptFile(const std::string& name) const {
  if (name.empty() || name.front() == '/') {
    return name;
  }
  return scriptDirectory_ + "/" + name;
}

} // namespace quenby
