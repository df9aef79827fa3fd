#pragma once

#include "app/ShortcutDiagnostics.hpp"
#include "app/menu/HUDEnableExplaining.hpp"
#include "base/Localizer.hpp"
#include "base/MainScheduler.hpp"
#include "base/ObservationToken.hpp"
#include "base/ObserverList.hpp"
#include "data/AppPreferencesProviding.hpp"
#include "hud/access/KeyboardAccessMonitor.hpp"
#include "hud/feature/HUDFeatureController.hpp"
#include "hud/tap/SystemEventTapPermission.hpp"
#include "shortcuts/hotkeys/OptionDigitHotKeyFeatureController.hpp"
#include "shortcuts/mapping/KeyboardMappingSnapshotProviding.hpp"
#include "shortcuts/switching/ShortcutTestMonitor.hpp"
#include "ui/login/LaunchAtLoginServicing.hpp"
#include "ui/settings/GeneralSettingsContent.hpp"
#include "ui/settings/ShortcutTestSession.hpp"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>

namespace quenby {

/// The General page of the Settings window: the preferences, the HUD switch with its
/// permissions, launch at login, the digit shortcuts' health and the shortcut test. Follows
/// everything it shows and tells its view when the content changed; the view draws `content()`
/// and hands every user action back here. Main thread only; every collaborator must outlive it.
class GeneralSettingsViewModel {
public:
  using ChoiceId = GeneralSettingsContent::ChoiceId;
  using ToggleId = GeneralSettingsContent::ToggleId;
  using Action = GeneralSettingsContent::Action;

  struct Collaborators {
    AppPreferencesProviding& preferences;
    HUDFeatureController& hud;
    KeyboardAccessMonitor& keyboardAccess;
    SystemEventTapPermission& permission;
    /// The same explanation the menu shows before the HUD is turned on.
    HUDEnableExplaining& enableExplainer;
    OptionDigitHotKeyFeatureController& optionDigits;
    KeyboardMappingSnapshotProviding& mappings;
    ShortcutDiagnostics& diagnostics;
    LaunchAtLoginServicing& launchAtLogin;
    ShortcutTestMonitor& testMonitor;
    MainScheduler& scheduler;
    const Localizer& localizer;
  };

  explicit GeneralSettingsViewModel(Collaborators collaborators);
  GeneralSettingsViewModel(const GeneralSettingsViewModel&) = delete;
  GeneralSettingsViewModel& operator=(const GeneralSettingsViewModel&) = delete;
  ~GeneralSettingsViewModel();

  [[nodiscard]] const GeneralSettingsContent& content() const { return content_; }
  /// `handler` runs after each change of `content()`, until the token ends.
  [[nodiscard]] ObservationToken observe(std::function<void()> handler) {
    return observers_.add(std::move(handler));
  }

  /// Writes option `index` of menu `id` to its preference; an index out of range changes
  /// nothing.
  void select(ChoiceId id, std::size_t index);
  /// Turning the HUD on asks first; turning launch at login on or off may fail, and the page
  /// then says why.
  void setToggle(ToggleId id, bool isOn);
  void perform(Action action);

  /// The window came forward: what the user may have changed in System Settings meanwhile is
  /// read again.
  void windowDidShow();
  /// The window closed: a waiting shortcut test ends.
  void windowWillClose();

  [[nodiscard]] const ShortcutTestSession& shortcutTest() const { return test_; }

private:
  void setLaunchAtLogin(bool isOn);
  void synchronize();

  Collaborators c_;
  ShortcutTestSession test_;
  LaunchAtLoginStatus launchAtLoginStatus_;
  std::optional<std::string> launchAtLoginError_;
  GeneralSettingsContent content_;
  ObserverList<> observers_;
  ObservationToken preferenceObservation_;
  ObservationToken hudObservation_;
  ObservationToken keyboardAccessObservation_;
  ObservationToken digitObservation_;
  ObservationToken mappingObservation_;
  ObservationToken diagnosticsObservation_;
  ObservationToken testObservation_;
};

} // namespace quenby
