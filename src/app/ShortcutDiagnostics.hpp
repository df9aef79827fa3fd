#pragma once

#include "base/ObservationToken.hpp"
#include "base/ObserverList.hpp"
#include "data/AppPreferences.hpp"

#include <functional>
#include <optional>
#include <string>
#include <utility>

namespace quenby {

/// What the manual shortcut test found: the shortcut did not reach this program, so something
/// else on the system takes it.
struct ShortcutManualConflict {
  /// Already localised.
  std::string message;
  friend bool operator==(const ShortcutManualConflict&, const ShortcutManualConflict&) = default;
};

/// What is known about the health of the keyboard shortcuts beyond registration: a warning found
/// automatically and the outcome of the user's manual shortcut test. The menu-bar icon turns to
/// its attention state while `hasIssue()` holds.
class ShortcutDiagnostics {
public:
  explicit ShortcutDiagnostics(bool isRuntimeAvailable = true)
      : isRuntimeAvailable_(isRuntimeAvailable) {}
  ShortcutDiagnostics(const ShortcutDiagnostics&) = delete;
  ShortcutDiagnostics& operator=(const ShortcutDiagnostics&) = delete;

  /// `handler` runs after any value below changes (and so whenever `hasIssue()` flips), for as
  /// long as the token is held; never for a setter that leaves everything as it was.
  [[nodiscard]] ObservationToken observeChanges(std::function<void()> handler) {
    return observers_.add(std::move(handler));
  }

  [[nodiscard]] bool hasIssue() const {
    return automaticWarning_.has_value() || manualConflict_.has_value();
  }

  [[nodiscard]] const std::optional<std::string>& automaticWarning() const {
    return automaticWarning_;
  }
  void setAutomaticWarning(std::optional<std::string> warning);

  [[nodiscard]] const std::optional<ShortcutManualConflict>& manualConflict() const {
    return manualConflict_;
  }
  void recordManualConflict(ShortcutManualConflict conflict);
  void clearManualConflict();

  /// The modifier the last manual test ran with.
  [[nodiscard]] std::optional<ActivationModifierPreference> testedModifier() const {
    return testedModifier_;
  }
  void setTestedModifier(std::optional<ActivationModifierPreference> modifier);

  /// False where no shortcut runtime exists (previews, test hosts): the manual test cannot run.
  [[nodiscard]] bool isRuntimeAvailable() const { return isRuntimeAvailable_; }
  void setRuntimeAvailable(bool available);

  /// Counts manual tests started, so that a late time-out of an earlier test changes nothing.
  [[nodiscard]] int testGeneration() const { return testGeneration_; }
  /// Starts a new generation and returns it.
  int advanceTestGeneration();

private:
  template <typename T> void update(T& field, T value);

  ObserverList<> observers_;
  std::optional<std::string> automaticWarning_;
  std::optional<ShortcutManualConflict> manualConflict_;
  std::optional<ActivationModifierPreference> testedModifier_;
  bool isRuntimeAvailable_;
  int testGeneration_ = 0;
};

} // namespace quenby
