#include "ui/settings/ShortcutTestSession.hpp"

#include "base/StringFormatter.hpp"
#include "shortcuts/hotkeys/OptionDigitHotKeyError.hpp"
#include "shortcuts/hotkeys/UnavailableDockPositionFailure.hpp"
#include "ui/settings/GeneralSettingsTexts.hpp"

#include <string_view>

namespace quenby {
namespace {

std::string_view modifierSymbol(ActivationModifierPreference modifier) {
  return modifier == ActivationModifierPreference::control ? "⌃" : "⌥";
}

} // namespace

ShortcutTestSession::ShortcutTestSession(Collaborators collaborators)
    : c_(std::move(collaborators)) {}

void ShortcutTestSession::start() {
  if (!c_.diagnostics.isRuntimeAvailable()) {
    return;
  }
  c_.diagnostics.advanceTestGeneration();
  c_.diagnostics.setTestedModifier(c_.preferences.activationModifier());
  phase_ = Phase::waiting;
  secondsLeft_ = kSeconds;
  pressed_.clear();
  outcome_.clear();
  showCountdown();
  arming_ = c_.monitor.arm(
      [this](const ShortcutTestMonitor::Observation& observation) { record(observation); });
  ticks_ = c_.scheduler.scheduleRepeating(std::chrono::seconds(1), [this] { tick(); });
  observers_.notify();
}

void ShortcutTestSession::cancel() {
  if (phase_ == Phase::idle) {
    return;
  }
  stopWaiting();
  phase_ = Phase::idle;
  status_.clear();
  pressed_.clear();
  outcome_.clear();
  observers_.notify();
}

void ShortcutTestSession::tick() {
  if (--secondsLeft_ > 0) {
    showCountdown();
    observers_.notify();
    return;
  }
  stopWaiting();
  phase_ = Phase::timedOut;
  status_ = c_.localizer.localized(kShortcutTestTimedOut);
  // Something else on the system may take the shortcut before it reaches us; the user would
  // otherwise never learn why it does nothing.
  c_.diagnostics.recordManualConflict(
      {formatLocalized(c_.localizer.localized(kSettingsTestedConflict),
                       {modifierDisplayName(c_.preferences.activationModifier())})});
  observers_.notify();
}

void ShortcutTestSession::record(const ShortcutTestMonitor::Observation& observation) {
  stopWaiting();
  phase_ = Phase::observed;
  status_.clear();
  pressed_ = std::string(modifierSymbol(observation.modifier)) + observation.key;
  outcome_ = describe(observation);
  c_.diagnostics.clearManualConflict();
  observers_.notify();
}

void ShortcutTestSession::stopWaiting() {
  arming_.cancel();
  ticks_.cancel();
  secondsLeft_ = 0;
}

void ShortcutTestSession::showCountdown() {
  status_ = formatLocalized(c_.localizer.localized(kShortcutTestCountdown),
                            {modifierDisplayName(c_.preferences.activationModifier()),
                             static_cast<long long>(secondsLeft_)});
}

std::string
ShortcutTestSession::describe(const ShortcutTestMonitor::Observation& observation) const {
  using Outcome = ShortcutTestMonitor::Observation::Outcome;
  const Localizer& localizer = c_.localizer;
  const bool isDigit = observation.key >= '1' && observation.key <= '9';
  const std::string key(1, observation.key);
  switch (observation.outcome) {
  case Outcome::switchToApplication:
    return isDigit ? formatLocalized(localizer.localized(kShortcutTestWouldOpenDigit),
                                     {observation.applicationName,
                                      static_cast<long long>(observation.key - '0')})
                   : formatLocalized(localizer.localized(kShortcutTestWouldOpenLetter),
                                     {observation.applicationName, key});
  case Outcome::hideApplication:
    return formatLocalized(localizer.localized(kShortcutTestWouldHide),
                           {observation.applicationName});
  case Outcome::dockPositionUnavailable:
    return unavailableDockPositionFailure(
               observation.key - '0',
               observation.dockProblem.value_or(NumberMappingProblem::emptyDockPosition()),
               localizer)
        .message;
  case Outcome::cannotSwitch: {
    const std::string reason =
        observation.failure ? observation.failure->description(localizer) : std::string();
    if (observation.keyTypesAsUsual) {
      return formatLocalized(localizer.localized(kShortcutTestTypesAsUsual), {reason});
    }
    return formatLocalized(localizer.localized(kShortcutTestCannotSwitch),
                           {observation.applicationName, reason});
  }
  case Outcome::unassigned:
    break;
  }
  return formatLocalized(localizer.localized(kShortcutTestUnassigned), {key});
}

} // namespace quenby
