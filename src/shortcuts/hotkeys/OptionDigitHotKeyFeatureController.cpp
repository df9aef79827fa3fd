#include "shortcuts/hotkeys/OptionDigitHotKeyFeatureController.hpp"

namespace quenby {

OptionDigitHotKeyFeatureController::OptionDigitHotKeyFeatureController(
    OptionDigitHotKeyRegistrar& registrar, AppPreferencesProviding& preferences,
    SystemSymbolicHotKeyReading& symbolicHotKeys)
    : registrar_(registrar), preferences_(preferences), symbolicHotKeys_(symbolicHotKeys) {}

OptionDigitHotKeyFeatureController::~OptionDigitHotKeyFeatureController() {
  // The observation goes first so that no preference change reaches a half-destroyed object.
  preferenceObservation_.reset();
}

void OptionDigitHotKeyFeatureController::start() {
  if (preferenceObservation_) {
    return;
  }
  preferenceObservation_.emplace(preferences_.observe([this](AppPreferenceChange change) {
    if (change.property == AppPreferenceProperty::activationModifier) {
      registerForCurrentModifier();
    }
  }));
  registerForCurrentModifier();
}

void OptionDigitHotKeyFeatureController::retry() {
  if (!preferenceObservation_) {
    start();
    return;
  }
  registerForCurrentModifier();
}

void OptionDigitHotKeyFeatureController::stop() {
  if (!preferenceObservation_) {
    return;
  }
  preferenceObservation_.reset();
  registrar_.unregisterAll();
  conflicts_.clear();
  setHealth(OptionDigitHotKeyHealth::notStarted());
}

void OptionDigitHotKeyFeatureController::registerForCurrentModifier() {
  const auto modifier = preferences_.activationModifier();
  // Diagnostic only: the system's shortcut wins silently, so registering is no different.
  const auto table = symbolicHotKeys_.copySymbolicHotKeys();
  conflicts_ = table ? SymbolicHotKeyConflict::findAll(*table, modifier)
                     : std::vector<SymbolicHotKeyConflict>{};

  if (auto error = registrar_.start(modifier)) {
    registrar_.unregisterAll();
    setHealth(OptionDigitHotKeyHealth::registrationFailed(std::move(*error)));
    return;
  }
  setHealth(OptionDigitHotKeyHealth::ready());
}

void OptionDigitHotKeyFeatureController::setHealth(OptionDigitHotKeyHealth health) {
  if (health == health_) {
    return;
  }
  health_ = std::move(health);
  if (onHealthChanged_) {
    onHealthChanged_(health_);
  }
}

} // namespace quenby
