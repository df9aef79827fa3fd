#pragma once

#include "app/ConfigurationFailureReporting.hpp"
#include "base/LifetimeGuard.hpp"
#include "base/Localizer.hpp"
#include "data/AppPreferencesProviding.hpp"
#include "shortcuts/hotkeys/OptionDigitHotKeyBackend.hpp"
#include "shortcuts/hotkeys/OptionDigitHotKeyError.hpp"
#include "shortcuts/hotkeys/UnavailableDockPositionFailure.hpp"
#include "shortcuts/mapping/KeyboardMappingSnapshot.hpp"
#include "shortcuts/switching/AppHiding.hpp"
#include "shortcuts/switching/AppSwitchCommandSubmitting.hpp"
#include "shortcuts/switching/AppSwitchFailureHandling.hpp"
#include "shortcuts/switching/FrontmostApplicationProviding.hpp"
#include "shortcuts/switching/ShortcutTestMonitor.hpp"
#include "ui/animation/ShortcutAnimationPresenting.hpp"

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace quenby {

/// Registers the nine modifier-digit hot keys and turns each press into a switch to the
/// application at that Dock position, a hide of it, or an explanation of why there is none.
/// Registration is all or nothing. Main thread only; every collaborator must outlive it.
class OptionDigitHotKeyRegistrar {
public:
  /// The current mappings; the reference is read at once, never kept.
  using CurrentMappings = std::function<const KeyboardMappingSnapshot&()>;

  struct Collaborators {
    OptionDigitHotKeyBackend& backend;
    CurrentMappings mappings;
    AppSwitchCommandSubmitting& switchCommands;
    AppSwitchFailureHandling& failureHandler;
    ConfigurationFailureReporting& configurationReporter;
    /// Followed for the hide preference, which a press reads without asking the store.
    AppPreferencesProviding& preferences;
    const FrontmostApplicationProviding& frontmostApplications;
    AppHiding& appHider;
    /// Plays just before an accepted press is submitted.
    ShortcutAnimationPresenting& animation;
    const Localizer& localizer;
    /// While armed, a press is described to it and does nothing else.
    ShortcutTestMonitor* testMonitor = nullptr;
  };

  explicit OptionDigitHotKeyRegistrar(Collaborators collaborators);
  OptionDigitHotKeyRegistrar(const OptionDigitHotKeyRegistrar&) = delete;
  OptionDigitHotKeyRegistrar& operator=(const OptionDigitHotKeyRegistrar&) = delete;
  /// Leaves no hot key and no handler behind.
  ~OptionDigitHotKeyRegistrar();

  /// Removes whatever is registered, then installs the handler and registers digits 1–9 with
  /// `modifier`. On failure nothing stays registered and the error says what failed first.
  [[nodiscard]] std::optional<OptionDigitHotKeyError> start(ActivationModifierPreference modifier);
  /// Unregisters the hot keys, last registered first, then removes the handler.
  void unregisterAll();
  /// The press path. Digits outside 1–9 are ignored. Allocates nothing on the way to a switch.
  void handleHotKey(int digit);

  [[nodiscard]] ActivationModifierPreference activeModifier() const { return activeModifier_; }
  [[nodiscard]] bool isHandlerInstalled() const { return handlerInstalled_; }
  [[nodiscard]] std::size_t registeredHotKeyCount() const { return registeredCount_; }

private:
  void reportUnavailable(int digit, const NumberMappingProblem& problem);
  void describeForTest(int digit, const NumberMappingEntry& entry);

  Collaborators collaborators_;
  ActivationModifierPreference activeModifier_ = ActivationModifierPreference::option;
  bool handlerInstalled_ = false;
  /// Kept up to date from the preferences, so that a press costs no read of the user defaults.
  bool hidesFrontmostApplication_ = false;
  AppPreferenceObservation hidePreferenceObservation_;
  /// The identifiers registered, in registration order.
  std::array<std::uint32_t, 9> registeredIdentifiers_{};
  std::size_t registeredCount_ = 0;
  // Last: the installed handler stops reaching this object before any other member dies.
  LifetimeGuard lifetime_;
};

} // namespace quenby
