#include "hud/feature/HUDFeatureController.hpp"

namespace quenby {

HUDFeatureController::HUDFeatureController(SystemEventTapPermission& permission,
                                           GlobalKeyboardEventTap& eventTap,
                                           UserDefaultsHUDFeaturePreferences preferences,
                                           MainScheduler& scheduler)
    : permission_(permission), eventTap_(eventTap), preferences_(preferences),
      scheduler_(scheduler) {}

void HUDFeatureController::restore() {
  if (preferences_.isEnabled()) {
    refresh();
  } else {
    stopPolling();
    stopTap();
  }
}

void HUDFeatureController::enable() {
  preferences_.setEnabled(true);
  startPolling();
  const auto status = permission_.status();
  if (!status.missingKinds().empty() && !preferences_.wasPermissionRequested()) {
    // Marked first: the prompts appear whatever happens next, and never twice.
    preferences_.setPermissionRequested(true);
    for (const auto kind : status.missingKinds()) {
      permission_.request(kind);
    }
  }
  refresh();
}

void HUDFeatureController::disable() {
  preferences_.setEnabled(false);
  stopPolling();
  stopTap();
  publish(HUDHealth::disabled());
}

void HUDFeatureController::retry() {
  latchedTapFailure_.reset();
  if (preferences_.isEnabled()) {
    refresh();
  } else {
    publish(HUDHealth::disabled());
  }
}

void HUDFeatureController::refresh() {
  if (!preferences_.isEnabled()) {
    stopPolling();
    stopTap();
    publish(HUDHealth::disabled());
    return;
  }
  const auto status = permission_.status();
  if (!status.missingKinds().empty()) {
    stopTap();
    publish(HUDHealth::needsPermission(status));
    return;
  }
  if (latchedTapFailure_) {
    stopTap();
    publish(HUDHealth::tapFailure(*latchedTapFailure_));
    return;
  }
  if (!eventTap_.isRunning()) {
    // Starts from a clean slate: no pending time-out retry, no swallowed key.
    stopTap();
    if (eventTap_.start()) {
      stopTap();
      latchedTapFailure_ = HUDTapFailure::creation();
      publish(HUDHealth::tapFailure(*latchedTapFailure_));
      return;
    }
  }
  publish(HUDHealth::ready());
}

void HUDFeatureController::handleTapFailure(GlobalKeyboardEventTapFailure failure) {
  if (!latchedTapFailure_) {
    latchedTapFailure_ = HUDTapFailure::runtime(failure);
  }
  stopTap();
  refresh();
}

void HUDFeatureController::stop() {
  stopPolling();
  stopTap();
}

void HUDFeatureController::startPolling() {
  if (isPolling()) {
    return;
  }
  // The feature outlives its token, so the tick needs no weaker hold.
  pollToken_ = scheduler_.scheduleRepeating(kPermissionPollInterval, [this] { refresh(); });
}

void HUDFeatureController::stopTap() {
  // Also forgets a pending time-out retry and every swallowed key, even when not running.
  eventTap_.stop();
}

void HUDFeatureController::publish(HUDHealth health) {
  if (health == health_) {
    return;
  }
  health_ = health;
  healthObservers_.notify();
}

} // namespace quenby
