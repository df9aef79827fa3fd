#pragma once

#include "base/ObservationToken.hpp"
#include "data/AppPreferences.hpp"
#include "shortcuts/mapping/NumberMappingProblem.hpp"
#include "shortcuts/switching/AppSwitchConfigurationFailure.hpp"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace quenby {

/// While armed, the next modifier shortcut is described to the user's test instead of being
/// carried out: the digit and letter paths ask `isArmed()` (one test of a flag, so a key that
/// passes costs nothing more), report what they saw and would have done, and then swallow the
/// key that would have acted. A key that would have typed as usual is reported and still types.
/// One report per arming. Main thread only.
class ShortcutTestMonitor {
public:
  /// One press, as the shortcut path saw it.
  struct Observation {
    enum class Outcome : std::uint8_t {
      /// Would open or bring forward `applicationName`.
      switchToApplication,
      /// Would hide `applicationName`, which is already in front.
      hideApplication,
      /// The key's application cannot be used; `failure` says why.
      cannotSwitch,
      /// The Dock position is empty or unreadable; `dockProblem` says why.
      dockPositionUnavailable,
      /// No application is assigned to the letter: it types as usual.
      unassigned,
    };

    ActivationModifierPreference modifier = ActivationModifierPreference::option;
    /// '1'–'9' or 'A'–'Z'.
    char key = '1';
    Outcome outcome = Outcome::unassigned;
    std::string applicationName{};
    /// True when the key still reaches the application in front.
    bool keyTypesAsUsual = false;
    std::optional<AppSwitchConfigurationFailure> failure{};
    std::optional<NumberMappingProblem> dockProblem{};

    friend bool operator==(const Observation&, const Observation&) = default;
  };
  using Handler = std::function<void(const Observation&)>;

  ShortcutTestMonitor() = default;
  ShortcutTestMonitor(const ShortcutTestMonitor&) = delete;
  ShortcutTestMonitor& operator=(const ShortcutTestMonitor&) = delete;

  [[nodiscard]] bool isArmed() const { return static_cast<bool>(handler_); }

  /// `handler` receives the next press, once; dropping the token first disarms. Arming again
  /// replaces an earlier arming, whose token then does nothing.
  [[nodiscard]] ObservationToken arm(Handler handler) {
    handler_ = std::move(handler);
    const auto arming = ++armings_;
    return ObservationToken([this, arming, alive = std::weak_ptr<bool>(alive_)] {
      if (alive.lock() && armings_ == arming) {
        handler_ = nullptr;
      }
    });
  }

  /// Disarms, then tells the handler; does nothing when not armed.
  void report(const Observation& observation) {
    if (!handler_) {
      return;
    }
    const Handler handler = std::exchange(handler_, nullptr);
    handler(observation);
  }

private:
  Handler handler_;
  std::uint64_t armings_ = 0;
  // A token may outlive the monitor; it then finds this gone.
  std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);
};

} // namespace quenby
