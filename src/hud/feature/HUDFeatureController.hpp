#pragma once

#include "base/MainScheduler.hpp"
#include "base/ObservationToken.hpp"
#include "base/ObserverList.hpp"
#include "hud/feature/HUDHealth.hpp"
#include "hud/feature/UserDefaultsHUDFeaturePreferences.hpp"
#include "hud/tap/GlobalKeyboardEventTap.hpp"
#include "hud/tap/SystemEventTapPermission.hpp"

#include <chrono>
#include <optional>

namespace quenby {

/// Decides whether the keyboard tap may run: only while the user has the HUD enabled, both
/// permissions are granted and no tap failure is latched. Asks for the permissions once per
/// installation, then watches for the grant; a tap that the system stopped stays off until the
/// user retries, so a tap the system keeps killing cannot loop. Main thread only; every
/// collaborator must outlive it.
class HUDFeatureController {
public:
  static constexpr std::chrono::seconds kPermissionPollInterval{1};

  HUDFeatureController(SystemEventTapPermission& permission, GlobalKeyboardEventTap& eventTap,
                       UserDefaultsHUDFeaturePreferences preferences, MainScheduler& scheduler);
  HUDFeatureController(const HUDFeatureController&) = delete;
  HUDFeatureController& operator=(const HUDFeatureController&) = delete;

  /// At launch: the stored switch decides; no prompt, no poll.
  void restore();
  /// The user turned the HUD on: prompts for what is missing the first time ever, then polls
  /// for the grant.
  void enable();
  void disable();
  /// Forgets a latched tap failure and tries again.
  void retry();
  /// Recomputes the health from the switch, the permissions and the latch, starting or stopping
  /// the tap to match.
  void refresh();
  /// Installed as the tap's failure handler.
  void handleTapFailure(GlobalKeyboardEventTapFailure failure);
  /// At termination.
  void stop();

  [[nodiscard]] const HUDHealth& health() const { return health_; }
  /// The user's switch, which stays on while permissions or a tap failure keep the HUD off.
  [[nodiscard]] bool isEnabled() const { return preferences_.isEnabled(); }
  [[nodiscard]] bool isPolling() const { return !pollToken_.isCancelled(); }
  [[nodiscard]] const std::optional<HUDTapFailure>& latchedTapFailure() const {
    return latchedTapFailure_;
  }
  /// `handler` is called after each change of the health, until the token ends.
  [[nodiscard]] ObservationToken observeHealth(std::function<void()> handler) {
    return healthObservers_.add(std::move(handler));
  }

private:
  void startPolling();
  void stopPolling() { pollToken_.cancel(); }
  /// Stops the tap if it runs and forgets its state either way.
  void stopTap();
  void publish(HUDHealth health);

  SystemEventTapPermission& permission_;
  GlobalKeyboardEventTap& eventTap_;
  UserDefaultsHUDFeaturePreferences preferences_;
  MainScheduler& scheduler_;
  HUDHealth health_ = HUDHealth::disabled();
  std::optional<HUDTapFailure> latchedTapFailure_;
  ObserverList<> healthObservers_;
  ObservationToken pollToken_;
};

} // namespace quenby
