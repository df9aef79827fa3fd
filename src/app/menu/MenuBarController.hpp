#pragma once

#include "app/ShortcutDiagnostics.hpp"
#include "app/menu/HUDEnableExplaining.hpp"
#include "app/menu/MenuBarExtraStore.hpp"
#include "app/menu/MenuBarHealth.hpp"
#include "app/menu/MenuBarPresentation.hpp"
#include "base/Localizer.hpp"
#include "base/ObservationToken.hpp"
#include "data/AppPreferencesProviding.hpp"
#include "hud/access/KeyboardAccessMonitor.hpp"
#include "hud/feature/HUDFeatureController.hpp"
#include "hud/tap/SystemEventTapPermission.hpp"
#include "shortcuts/hotkeys/OptionDigitHotKeyFeatureController.hpp"

#include <functional>

namespace quenby {

/// Keeps the menu bar's presentation in step with the features' health, the HUD switch, the
/// activation modifier and the shortcut diagnostics, publishing to the store only what changed,
/// and carries out the commands chosen in the menu. Main thread only; every collaborator must
/// outlive it.
class MenuBarController {
public:
  struct Collaborators {
    HUDFeatureController& feature;
    KeyboardAccessMonitor& keyboardAccess;
    OptionDigitHotKeyFeatureController& optionDigits;
    AppPreferencesProviding& preferences;
    ShortcutDiagnostics& diagnostics;
    MenuBarExtraStore& presentationPublisher;
    HUDEnableExplaining& enableExplainer;
    SystemEventTapPermission& permission;
    std::function<void()> showSettings;
    std::function<void()> terminateApplication;
    const Localizer& localizer;
  };

  explicit MenuBarController(Collaborators collaborators);
  MenuBarController(const MenuBarController&) = delete;
  MenuBarController& operator=(const MenuBarController&) = delete;
  ~MenuBarController();

  /// Starts following every input and publishes the first presentation. Idempotent.
  void start();
  /// Stops following and stops taking commands. Does nothing when stopped.
  void stop();
  /// What choosing an item does; ignored unless started.
  void perform(const MenuBarCommand& command);

  [[nodiscard]] const MenuBarHealth& health() const { return health_; }
  [[nodiscard]] const MenuBarPresentation& presentation() const { return presentation_; }

private:
  void synchronize();
  void toggleHUD();

  Collaborators c_;
  ObservationToken healthObservation_;
  ObservationToken keyboardAccessObservation_;
  ObservationToken preferenceObservation_;
  ObservationToken diagnosticsObservation_;
  bool isStopped_ = true;
  MenuBarHealth health_;
  MenuBarPresentation presentation_;
};

} // namespace quenby
