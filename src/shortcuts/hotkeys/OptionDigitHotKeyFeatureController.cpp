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
  const bool hadConflicts = !conflicts_.empty();
  conflicts_.clear();
  setHealth(OptionDigitHotKeyHealth::notStarted(), hadConflicts);
}

void OptionDigitHotKeyFeatureController::registerForCurrentModifier() {
  const auto modifier = preferences_.activationModifier();
  // Diagnostic only: the system's shortcut wins silently, so registering is no different.
  const auto table = symbolicHotKeys_.copySymbolicHotKeys();
  auto conflicts = table ? SymbolicHotKeyConflict::findAll(*table, modifier)
                         : std::vector<SymbolicHotKeyConflict>{};
  const bool conflictsChanged = conflicts != conflicts_;
  conflicts_ = std::move(conflicts);

  if (auto error = registrar_.start(modifier)) {
    registrar_.unregisterAll();
    setHealth(OptionDigitHotKeyHealth::registrationFailed(std::move(*error)), conflictsChanged);
    return;
  }
  setHealth(OptionDigitHotKeyHealth::ready(), conflictsChanged);
}

void OptionDigitHotKeyFeatureController::setHealth(OptionDigitHotKeyHealth health,
                                                   bool conflictsChanged) {
  const bool healthChanged = health != health_;
  if (healthChanged) {
    health_ = std::move(health);
    if (onHealthChanged_) {
      onHealthChanged_(health_);
    }
  }
  if (healthChanged || conflictsChanged) {
    observers_.notify();
  }
}

} // namespace quenby
