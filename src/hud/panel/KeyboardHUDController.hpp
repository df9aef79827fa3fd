#pragma once

#include "base/Geometry.hpp"
#include "base/LifetimeGuard.hpp"
#include "base/Localizer.hpp"
#include "base/MainScheduler.hpp"
#include "base/ObservationToken.hpp"
#include "data/AppPreferencesProviding.hpp"
#include "data/WindowPlacementSnapshotProviding.hpp"
#include "hud/panel/HUDDigitInfoPresenting.hpp"
#include "hud/panel/HUDOutsideClickMonitor.hpp"
#include "hud/panel/HUDPresentationMeasuring.hpp"
#include "hud/panel/KeyboardHUDPanel.hpp"
#include "hud/panel/KeyboardHUDPanelMaking.hpp"
#include "hud/tap/KeyboardHUDPresenting.hpp"
#include "hud/view/HUDKey.hpp"
#include "hud/view/KeyboardHUDViewModel.hpp"
#include "shortcuts/mapping/KeyboardMappingSnapshotProviding.hpp"
#include "shortcuts/running/ApplicationIconProviding.hpp"
#include "shortcuts/running/RunningApplicationMonitoring.hpp"
#include "shortcuts/switching/AppHiding.hpp"
#include "shortcuts/switching/AppSwitchCommandSubmitting.hpp"
#include "shortcuts/switching/AppSwitchFailureHandling.hpp"
#include "ui/animation/ShortcutAnimationPresenting.hpp"

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace quenby {

/// Owns the HUD's panel: shows it centred on the screen the placement preference picks, keeps
/// its size, opacity and appearance in step with the preferences, cross-fades its content when
/// the mappings, icons or running applications change while it is up, dismisses it on a click
/// anywhere else, and turns picks on it into switches. It never activates the application: the
/// user keeps typing into the front application while the HUD is up.
///
/// Keys and picks on the HUD become `HUDKeyboardAction`s. A switch goes through the same check
/// as a shortcut: a mapping that cannot work is reported (once per application and cause)
/// instead of being submitted. A digit that leads nowhere is explained on the spot, in the words
/// the modifier-digit shortcut uses.
///
/// Main thread only. Every collaborator and the model must outlive the controller.
class KeyboardHUDController final : public KeyboardHUDPresenting {
public:
  struct Collaborators {
    KeyboardMappingSnapshotProviding& mappings;
    ApplicationIconProviding& iconProvider;
    RunningApplicationMonitoring& runningApplications;
    AppSwitchCommandSubmitting& switchCommands;
    AppSwitchFailureHandling& failureHandler;
    /// Plays just before an accepted pick is submitted.
    ShortcutAnimationPresenting& animation;
    AppHiding& appHider;
    HUDDigitInfoPresenting& digitInfo;
    AppPreferencesProviding& preferences;
    const WindowPlacementSnapshotProviding& windowPlacement;
    KeyboardHUDViewModel& model;
    HUDPresentationMeasuring& metrics;
    KeyboardHUDPanelMaking& panelFactory;
    HUDOutsideClickMonitorDependencies outsideClickMonitor;
    MainScheduler& contentAnimationScheduler;
    /// Runs the actions, each after the event that chose it.
    MainScheduler& actionScheduler;
    const Localizer& localizer;
  };

  /// How long the old content fades out, and the new one in.
  static constexpr std::chrono::milliseconds kFadeOutDuration{120};
  static constexpr std::chrono::milliseconds kFadeInDuration{180};

  /// Makes the panel, hidden, and starts following the preferences, mappings and icons.
  explicit KeyboardHUDController(Collaborators collaborators);
  KeyboardHUDController(const KeyboardHUDController&) = delete;
  KeyboardHUDController& operator=(const KeyboardHUDController&) = delete;
  ~KeyboardHUDController() override;

  [[nodiscard]] bool isVisible() const override { return panel_->isVisible(); }
  /// Does nothing while visible.
  void show() override;
  void hide() override;

  /// Hides the HUD at once, so the next key already meets it closed; the rest of the action
  /// runs after the current event, in the order the actions came: a switch, a hide of the front
  /// application, the digit's explanation, the mapping editor or the Settings window (each
  /// opener only when someone set it).
  void perform(const HUDKeyboardAction& action) override;
  /// A key clicked on the HUD, decided as the same key typed, over the content the user sees;
  /// a click on a letter without a mapping opens the mapping editor there.
  void selectKey(HUDKey key);
  void openSettings() { perform(HUDKeyboardAction::openSettings()); }

  /// Called once per presentation, when its first frame is on screen.
  void setOnFirstFramePresented(std::function<void()> hook) {
    onFirstFramePresented_ = std::move(hook);
  }
  void setSettingsOpener(std::function<void()> opener) { settingsOpener_ = std::move(opener); }
  void setLetterEditorOpener(std::function<void(char)> opener) {
    letterEditorOpener_ = std::move(opener);
  }

  /// The frame of the screen chosen at the last show, kept while the HUD is up so that a resize
  /// stays on that screen; none while hidden.
  [[nodiscard]] const std::optional<Rect>& presentationTargetFrame() const {
    return presentationTargetFrame_;
  }
  [[nodiscard]] std::uint64_t presentationGeneration() const { return presentationGeneration_; }
  [[nodiscard]] const KeyboardHUDPanel& panel() const { return *panel_; }

private:
  void resetContentAnimation();
  [[nodiscard]] Rect currentTargetFrame() const;
  void applySize(HUDSizePreference size, bool reposition);
  void applyOpacity(HUDOpacityPreference opacity);
  void centre(Rect target);
  [[nodiscard]] KeyboardHUDMappingCache buildContent() const;
  [[nodiscard]] std::map<std::string, std::shared_ptr<const PreparedApplicationIcon>>
  loadedIcons(const KeyboardMappingSnapshot& snapshot) const;
  void firstFramePresented(std::uint64_t generation);
  void outsideClick(Point screenPoint);
  void preferenceChanged(const AppPreferenceChange& change);
  void contentChanged();
  void iconsChanged();
  void fadeIn(std::uint64_t generation);
  void finishFade(std::uint64_t generation);
  void runPendingActions();
  void run(const HUDKeyboardAction& action);
  void switchChecked(const AppMapping& mapping);

  Collaborators collaborators_;
  std::unique_ptr<KeyboardHUDPanel> panel_;
  HUDOutsideClickMonitor outsideClickMonitor_;
  ObservationToken contentAnimationStep_;
  std::uint64_t contentAnimationGeneration_ = 0;
  std::uint64_t presentationGeneration_ = 0;
  std::optional<Rect> presentationTargetFrame_;
  std::function<void()> onFirstFramePresented_;
  std::function<void()> settingsOpener_;
  std::function<void(char)> letterEditorOpener_;
  std::vector<HUDKeyboardAction> pendingActions_;
  ObservationToken pendingActionsRun_;
  AppPreferenceObservation preferenceObservation_;
  ObservationToken mappingObservation_;
  ObservationToken runningObservation_;
  ObservationToken iconObservation_;
  // Last: callbacks held by the panel, the monitors and the scheduler stop reaching this object
  // before any other member dies.
  LifetimeGuard lifetime_;
};

} // namespace quenby
