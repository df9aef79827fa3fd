#include "app/AppLaunchController.hpp"

#include <utility>

namespace quenby {

AppLaunchController::AppLaunchController(AppLaunchContext launchContext,
                                         CoordinatorFactory makeCoordinator,
                                         StatusItemFactory makeStatusItemPresenter)
    : makeCoordinator_(std::move(makeCoordinator)),
      makeStatusItemPresenter_(std::move(makeStatusItemPresenter)), launchContext_(launchContext) {}

AppLaunchController::~AppLaunchController() = default;

void AppLaunchController::applicationDidFinishLaunching() {
  if (coordinator_) {
    return;
  }
  coordinator_ = makeCoordinator_();
  coordinator_->start();
  MenuBarExtraStore* store = coordinator_->menuBarExtra();
  if (launchContext_.includesMenuBarExtra && store != nullptr) {
    statusItemPresenter_ = makeStatusItemPresenter_(*store);
    statusItemPresenter_->install();
  }
  // A test host's bundle is the test runner's, never ours to move.
  if (launchContext_.includesMenuBarExtra) {
    coordinator_->offerToMoveToApplications();
  }
}

void AppLaunchController::applicationWillTerminate() {
  if (auto presenter = std::exchange(statusItemPresenter_, nullptr)) {
    presenter->remove();
  }
  if (auto coordinator = std::exchange(coordinator_, nullptr)) {
    coordinator->stop();
  }
}

void AppLaunchController::showSettings() {
  if (coordinator_) {
    coordinator_->showSettings();
  }
}

bool AppLaunchController::handleReopen() {
  if (!coordinator_) {
    return true;
  }
  coordinator_->showSettings();
  return false;
}

} // namespace quenby
