#pragma once

#include "base/Logger.hpp"
#include "base/ObservationToken.hpp"
#include "data/AppPreferencesProviding.hpp"
#include "hud/gestures/ActivationGestureRecognizer.hpp"
#include "hud/panel/HUDPresentationMeasuring.hpp"
#include "hud/tap/GlobalKeyboardEventTapFailure.hpp"
#include "hud/tap/KeyCodeSet.hpp"
#include "hud/tap/KeyDownRouting.hpp"
#include "hud/tap/KeyboardHUDPresenting.hpp"
#include "hud/tap/SystemKeyboardEventTapBackend.hpp"

#include <cstdint>
#include <functional>
#include <optional>

namespace quenby {

/// Watches every key event of the login session: the activation modifier's changes drive the
/// HUD's gestures, key-downs go to the routing, and a key whose key-down was swallowed has its
/// repeats and its key-up swallowed too, even if the HUD closes in between. When the system
/// switches the tap off it recovers from one time-out by itself; any other stop is reported once
/// through `onFailure` and left to the owner. Main thread only.
class GlobalKeyboardEventTap {
public:
  struct Collaborators {
    SystemKeyboardEventTapDependencies dependencies;
    /// Must outlive the tap; so must everything below.
    AppPreferencesProviding& preferences;
    const SystemModifierKeyStateReader& keyStateReader;
    MainScheduler& scheduler;
    const MonotonicClock& clock;
    HUDPresentationMeasuring& metrics;
    KeyDownRouting& router;
    Logger& logger;
  };

  static constexpr std::string_view kLogCategory = "KeyboardEventTap";

  explicit GlobalKeyboardEventTap(Collaborators collaborators);
  GlobalKeyboardEventTap(const GlobalKeyboardEventTap&) = delete;
  GlobalKeyboardEventTap& operator=(const GlobalKeyboardEventTap&) = delete;
  ~GlobalKeyboardEventTap();

  void setOnFailure(std::function<void(GlobalKeyboardEventTapFailure)> onFailure) {
    onFailure_ = std::move(onFailure);
  }
  /// Told of each recognised gesture, whatever the HUD does about it.
  void setOnSelectedModifierDoubleTap(std::function<void(ActivationModifierPreference)> handler) {
    onSelectedModifierDoubleTap_ = std::move(handler);
  }
  void setOnSelectedModifierLongPress(std::function<void(ActivationModifierPreference)> handler) {
    onSelectedModifierLongPress_ = std::move(handler);
  }
  /// The HUD panel the gestures show and hide; null (the default) means there is none, and then
  /// no key-down is routed. The panel must be detached before it goes.
  void attach(KeyboardHUDPresenting* presenter) { presenter_ = presenter; }

  /// Starting a running tap changes nothing.
  [[nodiscard]] std::optional<GlobalKeyboardEventTapError> start();
  void stop();
  [[nodiscard]] bool isRunning() const { return backend_.isRunning(); }
  /// Forgets every swallowed key and gesture in progress; a side of the modifier held now counts
  /// only after it has been released.
  void reset();

  /// The verdict on one event; the installed callback's answer while the tap runs.
  EventTapDisposition handle(const KeyboardTapEvent& event);

  /// Between a re-enable after a time-out and the next ordinary event.
  [[nodiscard]] bool isAwaitingNormalEvent() const { return timeoutRetryPendingNormalEvent_; }
  /// Every key-down this tap has received, repeats included: compared with the system's own
  /// count to tell a tap that stopped hearing anything.
  [[nodiscard]] std::uint64_t keyDownCount() const { return keyDownCount_; }
  [[nodiscard]] const ActivationGestureRecognizer& gestures() const { return gestures_; }
  [[nodiscard]] const KeyCodeSet& consumedKeyCodes() const { return consumedKeyCodes_; }
  [[nodiscard]] const KeyCodeSet& hiddenShortcutKeyCodes() const { return hiddenShortcutKeyCodes_; }
  [[nodiscard]] const KeyCodeSet& settingsShortcutKeyCodes() const {
    return settingsShortcutKeyCodes_;
  }

private:
  void wireGestures();
  void observePreferences(AppPreferencesProviding& preferences);
  void handleTimeout();
  void fail(GlobalKeyboardEventTapFailure failure);
  EventTapDisposition handleKeyDown(const KeyboardTapEvent& event);
  EventTapDisposition handleKeyUp(std::uint16_t keyCode);

  std::function<void(GlobalKeyboardEventTapFailure)> onFailure_;
  std::function<void(ActivationModifierPreference)> onSelectedModifierDoubleTap_;
  std::function<void(ActivationModifierPreference)> onSelectedModifierLongPress_;
  KeyboardHUDPresenting* presenter_ = nullptr;
  HUDPresentationMeasuring& metrics_;
  KeyDownRouting& router_;
  Logger& logger_;
  ActivationGestureRecognizer gestures_;
  bool timeoutRetryPendingNormalEvent_ = false;
  /// Set once a failure has been reported, until the next successful start: one stop, one report.
  bool failureReported_ = false;
  std::uint64_t keyDownCount_ = 0;
  KeyCodeSet consumedKeyCodes_;
  KeyCodeSet hiddenShortcutKeyCodes_;
  KeyCodeSet settingsShortcutKeyCodes_;
  // After everything its callback touches, so that it stops first.
  SystemKeyboardEventTapBackend backend_;
  ObservationToken preferenceObservation_;
};

} // namespace quenby
