#include "hud/tap/GlobalKeyboardEventTap.hpp"

#include "hud/tap/KeyboardEventFlags.hpp"

#include <cstdlib>
#include <limits>

namespace quenby {
namespace {

// Key codes are 16 bits wide in every system event; anything else means the event was misread.
std::uint16_t keyCodeOf(const KeyboardTapEvent& event) {
  if (event.keyCode < 0 || event.keyCode > std::numeric_limits<std::uint16_t>::max()) {
    std::abort();
  }
  return static_cast<std::uint16_t>(event.keyCode);
}

} // namespace

GlobalKeyboardEventTap::GlobalKeyboardEventTap(Collaborators collaborators)
    : metrics_(collaborators.metrics), router_(collaborators.router), logger_(collaborators.logger),
      gestures_({.keyStateReader = collaborators.keyStateReader,
                 .scheduler = collaborators.scheduler,
                 .clock = collaborators.clock},
                collaborators.preferences.activationModifier(),
                collaborators.preferences.hudActivationGesture()),
      backend_(std::move(collaborators.dependencies)) {
  wireGestures();
  observePreferences(collaborators.preferences);
}

GlobalKeyboardEventTap::~GlobalKeyboardEventTap() { backend_.stop(); }

void GlobalKeyboardEventTap::wireGestures() {
  gestures_.setOutputs(
      {.onStickyToggle =
           [this](ActivationModifierPreference modifier) {
             if (onSelectedModifierDoubleTap_) {
               onSelectedModifierDoubleTap_(modifier);
             }
             if (presenter_ == nullptr) {
               return;
             }
             if (presenter_->isVisible()) {
               presenter_->hide();
             } else {
               metrics_.beginPresentation();
               presenter_->show();
             }
           },
       .onLongPressRecognized =
           [this](ActivationModifierPreference modifier) {
             if (onSelectedModifierLongPress_) {
               onSelectedModifierLongPress_(modifier);
             }
           },
       .onTransientOpen =
           [this](ActivationModifierPreference) {
             if (presenter_ != nullptr) {
               metrics_.beginPresentation();
               presenter_->show();
             }
           },
       .onTransientClose =
           [this] {
             if (presenter_ != nullptr) {
               presenter_->hide();
             }
           },
       .hudIsVisible = [this] { return presenter_ != nullptr && presenter_->isVisible(); }});
}

void GlobalKeyboardEventTap::observePreferences(AppPreferencesProviding& preferences) {
  preferenceObservation_ = preferences.observe([this](AppPreferenceChange change) {
    if (const auto modifier = change.valueIf<ActivationModifierPreference>(
            AppPreferenceProperty::activationModifier)) {
      gestures_.setActivationModifier(*modifier);
    } else if (const auto gesture = change.valueIf<HUDActivationGesturePreference>(
                   AppPreferenceProperty::hudActivationGesture)) {
      gestures_.setActivationGesture(*gesture);
    }
  });
}

std::optional<GlobalKeyboardEventTapError> GlobalKeyboardEventTap::start() {
  if (backend_.isRunning()) {
    return std::nullopt;
  }
  // Only `this`, so that the backend's copy per event stays inline.
  auto error = backend_.start([this](const KeyboardTapEvent& event) { return handle(event); });
  if (!error) {
    failureReported_ = false;
  }
  return error;
}

void GlobalKeyboardEventTap::stop() {
  if (backend_.isRunning()) {
    backend_.stop();
  }
  timeoutRetryPendingNormalEvent_ = false;
  reset();
}

void GlobalKeyboardEventTap::reset() {
  consumedKeyCodes_.clear();
  hiddenShortcutKeyCodes_.clear();
  settingsShortcutKeyCodes_.clear();
  gestures_.reset();
  gestures_.suppressHeldSides();
}

EventTapDisposition GlobalKeyboardEventTap::handle(const KeyboardTapEvent& event) {
  using Type = KeyboardTapEventType;
  switch (event.type) {
  case Type::tapDisabledByUserInput:
    // Never re-enabled: the user (or the system on their behalf) meant it.
    fail(timeoutRetryPendingNormalEvent_ ? GlobalKeyboardEventTapFailure::repeatedDisable
                                         : GlobalKeyboardEventTapFailure::disabledByUserInput);
    return EventTapDisposition::forward;
  case Type::tapDisabledByTimeout:
    handleTimeout();
    return EventTapDisposition::forward;
  default:
    break;
  }
  // An ordinary event proves that the re-enable after a time-out worked.
  timeoutRetryPendingNormalEvent_ = false;
  switch (event.type) {
  case Type::flagsChanged:
    // Modifier changes are never swallowed: other applications must see the modifier state.
    gestures_.handleFlagsChanged(keyCodeOf(event));
    return EventTapDisposition::forward;
  case Type::keyUp:
    return handleKeyUp(keyCodeOf(event));
  case Type::keyDown:
    return handleKeyDown(event);
  default:
    return EventTapDisposition::forward;
  }
}

void GlobalKeyboardEventTap::handleTimeout() {
  if (timeoutRetryPendingNormalEvent_) {
    fail(GlobalKeyboardEventTapFailure::repeatedDisable);
    return;
  }
  timeoutRetryPendingNormalEvent_ = true;
  reset();
  if (backend_.reenable()) {
    logger_.log(LogLevel::error, kLogCategory,
                "Global keyboard event tap was re-enabled after timeout.");
    return;
  }
  fail(GlobalKeyboardEventTapFailure::timeoutRecoveryFailed);
}

void GlobalKeyboardEventTap::fail(GlobalKeyboardEventTapFailure failure) {
  if (backend_.isRunning()) {
    backend_.stop();
  }
  timeoutRetryPendingNormalEvent_ = false;
  reset();
  if (failureReported_) {
    return;
  }
  failureReported_ = true;
  if (onFailure_) {
    onFailure_(failure);
  }
}

EventTapDisposition GlobalKeyboardEventTap::handleKeyDown(const KeyboardTapEvent& event) {
  ++keyDownCount_;
  gestures_.noteOtherKeyDown();
  const auto keyCode = keyCodeOf(event);
  if (event.isAutorepeat && settingsShortcutKeyCodes_.contains(keyCode)) {
    return EventTapDisposition::consume;
  }
  if (consumedKeyCodes_.contains(keyCode)) {
    return EventTapDisposition::consume;
  }
  // Repeats never start anything.
  if (event.isAutorepeat || presenter_ == nullptr) {
    return EventTapDisposition::forward;
  }
  const bool hudIsVisible = presenter_->isVisible();
  // With the HUD hidden only the activation modifier alone makes a shortcut: Shift, Command, fn
  // or the other modifier held as well make it somebody else's, and so does a side held since
  // before the tap (re)started. Almost every key of a session ends here.
  if (!hudIsVisible && ((event.flags & KeyboardEventFlags::kModifierMask) !=
                            KeyboardEventFlags::of(gestures_.activationModifier()) ||
                        !gestures_.normalizer().suppressedUntilRelease.empty())) {
    return EventTapDisposition::forward;
  }
  const auto decision =
      router_.route({.keyCode = keyCode, .flags = event.flags, .hudIsVisible = hudIsVisible});
  if (decision.disposition == EventTapDisposition::consume) {
    consumedKeyCodes_.insert(keyCode);
    if (!hudIsVisible) {
      hiddenShortcutKeyCodes_.insert(keyCode);
    }
    if (decision.action.is<HUDKeyboardAction::OpenSettings>()) {
      settingsShortcutKeyCodes_.insert(keyCode);
    }
  }
  if (!decision.action.is<HUDKeyboardAction::None>()) {
    presenter_->perform(decision.action);
  }
  return decision.disposition;
}

EventTapDisposition GlobalKeyboardEventTap::handleKeyUp(std::uint16_t keyCode) {
  hiddenShortcutKeyCodes_.erase(keyCode);
  settingsShortcutKeyCodes_.erase(keyCode);
  return consumedKeyCodes_.erase(keyCode) ? EventTapDisposition::consume
                                          : EventTapDisposition::forward;
}

} // namespace quenby
