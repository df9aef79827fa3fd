#include "app/AppCoordinator.hpp"

#include "ui/installer/ApplicationInstaller.hpp"

#include <utility>

namespace quenby {

AppCoordinator::AppCoordinator(AppRuntimeConfiguration configuration,
                               AppCoordinatorLifecycle lifecycle,
                               std::shared_ptr<void> retainedRuntime,
                               MenuBarExtraStore* menuBarExtra, ApplicationInstaller* installer)
    : lifecycle_(std::move(lifecycle)), retainedRuntime_(std::move(retainedRuntime)),
      menuBarExtra_(menuBarExtra), installer_(installer), configuration_(configuration) {}

// The closures point into the runtime: drop them before the graph they reference.
AppCoordinator::~AppCoordinator() { lifecycle_.reset(); }

void AppCoordinator::start() {
  if (state_ != State::initialized || !lifecycle_) {
    return;
  }
  state_ = State::running;
  auto& steps = *lifecycle_;
  steps.setAccessoryActivationPolicy();
  steps.startDock();
  const KeyboardMappingSnapshot snapshot = steps.initialSnapshot();
  steps.preloadIcons(snapshot);
  steps.prewarmShortcutAnimation();
  if (!configuration_.isHUDPerformanceMeasurement) {
    steps.startCatalogMonitoring();
  }
  steps.startRunningApplications();
  steps.startOptionDigits();
  steps.restoreHUD();
  steps.synchronizeMenu();
}

void AppCoordinator::stop() {
  if (state_ != State::running || !lifecycle_) {
    return;
  }
  state_ = State::stopped;
  auto& steps = *lifecycle_;
  steps.hideHUD();
  steps.closeMappingEditor();
  steps.closeSettings();
  steps.stopEventTap();
  steps.stopOptionDigits();
  steps.stopShortcutAnimation();
  steps.stopSwitchCommands();
  steps.stopRunningApplications();
  if (!configuration_.isHUDPerformanceMeasurement) {
    steps.stopCatalogMonitoring();
  }
  steps.stopMappings();
  steps.stopDock();
  steps.stopMenu();
  lifecycle_.reset();
  retainedRuntime_.reset();
}

void AppCoordinator::showSettings() {
  if (state_ == State::running && lifecycle_) {
    lifecycle_->showSettings();
  }
}

void AppCoordinator::offerToMoveToApplications() {
  if (state_ == State::running && installer_ != nullptr) {
    installer_->offerToMoveIfNeeded();
  }
}

const char* AppCoordinator::stateName(State state) {
  switch (state) {
  case State::initialized:
    return "initialized";
  case State::running:
    return "running";
  case State::stopped:
    break;
  }
  return "stopped";
}

} // namespace quenby
