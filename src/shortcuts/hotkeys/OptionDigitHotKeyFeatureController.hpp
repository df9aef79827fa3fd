#pragma once

#include "base/ObservationToken.hpp"
#include "base/ObserverList.hpp"
#include "data/AppPreferencesProviding.hpp"
#include "shortcuts/hotkeys/OptionDigitHotKeyHealth.hpp"
#include "shortcuts/hotkeys/OptionDigitHotKeyRegistrar.hpp"
#include "shortcuts/hotkeys/SymbolicHotKeyConflict.hpp"
#include "shortcuts/hotkeys/SystemSymbolicHotKeyReading.hpp"

#include <functional>
#include <optional>
#include <vector>

namespace quenby {

/// The digit shortcuts as a feature: registers them with the chosen modifier, registers them
/// again when the modifier preference changes, and keeps their health for the menu. Also notes
/// the digits that a system shortcut takes with the same modifier, which the registration itself
/// cannot detect. Main thread only; the registrar, the preferences and the reader must outlive it.
class OptionDigitHotKeyFeatureController {
public:
  using HealthHandler = std::function<void(const OptionDigitHotKeyHealth&)>;

  OptionDigitHotKeyFeatureController(OptionDigitHotKeyRegistrar& registrar,
                                     AppPreferencesProviding& preferences,
                                     SystemSymbolicHotKeyReading& symbolicHotKeys);
  OptionDigitHotKeyFeatureController(const OptionDigitHotKeyFeatureController&) = delete;
  OptionDigitHotKeyFeatureController& operator=(const OptionDigitHotKeyFeatureController&) = delete;
  ~OptionDigitHotKeyFeatureController();

  /// Registers for the current modifier and follows its changes. Idempotent.
  void start();
  /// Registers again for the current modifier, as after the user freed a taken combination;
  /// starts when stopped.
  void retry();
  /// Unregisters everything and stops following the preference; health returns to `notStarted`.
  /// Does nothing when stopped.
  void stop();

  [[nodiscard]] const OptionDigitHotKeyHealth& health() const { return health_; }
  /// Receives every change of health, after it took effect.
  void setOnHealthChanged(HealthHandler handler) { onHealthChanged_ = std::move(handler); }
  /// `handler` runs after each change of the health or of the system shortcut conflicts, until
  /// the token ends.
  [[nodiscard]] ObservationToken observe(std::function<void()> handler) {
    return observers_.add(std::move(handler));
  }
  /// The digits taken by a system shortcut with the modifier last registered; empty when
  /// stopped.
  [[nodiscard]] const std::vector<SymbolicHotKeyConflict>& systemShortcutConflicts() const {
    return conflicts_;
  }

private:
  void registerForCurrentModifier();
  /// Publishes `health`; `conflictsChanged` publishes even an unchanged health.
  void setHealth(OptionDigitHotKeyHealth health, bool conflictsChanged = false);

  OptionDigitHotKeyRegistrar& registrar_;
  AppPreferencesProviding& preferences_;
  SystemSymbolicHotKeyReading& symbolicHotKeys_;
  OptionDigitHotKeyHealth health_ = OptionDigitHotKeyHealth::notStarted();
  HealthHandler onHealthChanged_;
  ObserverList<> observers_;
  std::vector<SymbolicHotKeyConflict> conflicts_;
  std::optional<AppPreferenceObservation> preferenceObservation_;
};

} // namespace quenby
