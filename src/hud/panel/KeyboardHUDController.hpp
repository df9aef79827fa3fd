#pragma once

#include "app/ConfigurationFailureReporting.hpp"
#include "base/Geometry.hpp"
#include "base/LifetimeGuard.hpp"
#include "base/Localizer.hpp"
#include "base/MainScheduler.hpp"
#include "base/ObservationToken.hpp"
#include "data/AppPreferencesProviding.hpp"
#include "data/WindowPlacementSnapshotProviding.hpp"
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
#include "shortcuts/switching/AppSwitchCommandSubmitting.hpp"
#include "shortcuts/switching/AppSwitchFailureHandling.hpp"
#include "ui/animation/ShortcutAnimationPresenting.hpp"

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

namespace quenby {

/// Owns the HUD's panel: shows it centred on the screen the placement preference picks, keeps
/// its size, opacity and appearance in step with the preferences, cross-fades its content when
/// the mappings, icons or running applications change while it is up, dismisses it on a click
/// anywhere else, and turns picks on it into switches. It never activates the application: the
/// user keeps typing into the front application while the HUD is up.
///
/// A pick on the HUD always switches, never hides the front application, and goes through the
/// same check as a shortcut: a mapping that cannot work is reported (once per application and
/// cause) instead of being submitted, and a digit whose Dock position holds no application is
/// explained as for the modifier-digit shortcut.
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
    ConfigurationFailureReporting& configurationReporter;
    AppPreferencesProviding& preferences;
    const WindowPlacementSnapshotProviding& windowPlacement;
    KeyboardHUDViewModel& model;
    HUDPresentationMeasuring& metrics;
    KeyboardHUDPanelMaking& panelFactory;
    HUDOutsideClickMonitorDependencies outsideClickMonitor;
    MainScheduler& contentAnimationScheduler;
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

  /// A key picked on the HUD, by click or by keyboard: a digit or a letter switches to its
  /// application (an unmapped letter opens the mapping editor there), Escape dismisses.
  void selectKey(HUDKey key);
  /// Hides the HUD, then switches to `mapping`'s application unless the mapping cannot work.
  void execute(const AppMapping& mapping);
  /// Hides the HUD, then opens the Settings window when someone can.
  void openSettings();
  /// Hides the HUD, then opens the mapping editor at `letter` when someone can.
  void openLetterEditor(char letter);

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
  void selectDigit(int digit);
  void selectLetter(char letter);
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
  AppPreferenceObservation preferenceObservation_;
  ObservationToken mappingObservation_;
  ObservationToken runningObservation_;
  ObservationToken iconObservation_;
  // Last: callbacks held by the panel, the monitors and the scheduler stop reaching this object
  // before any other member dies.
  LifetimeGuard lifetime_;
};

} // namespace quenby
