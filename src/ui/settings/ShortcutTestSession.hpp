#pragma once

#include "app/ShortcutDiagnostics.hpp"
#include "base/Localizer.hpp"
#include "base/MainScheduler.hpp"
#include "base/ObservationToken.hpp"
#include "base/ObserverList.hpp"
#include "data/AppPreferencesProviding.hpp"
#include "shortcuts/switching/ShortcutTestMonitor.hpp"

#include <chrono>
#include <functional>
#include <string>

namespace quenby {

/// The General page's five-second shortcut test: for five seconds the next digit or letter
/// shortcut is described (what was pressed, what it would have done) instead of carried out. A
/// test that hears nothing records a possible conflict in the shortcut diagnostics, which a test
/// that hears a shortcut clears again. Main thread only; every collaborator must outlive it.
class ShortcutTestSession {
public:
  static constexpr int kSeconds = 5;

  enum class Phase : std::uint8_t { idle, waiting, observed, timedOut };

  struct Collaborators {
    ShortcutTestMonitor& monitor;
    MainScheduler& scheduler;
    ShortcutDiagnostics& diagnostics;
    AppPreferencesProviding& preferences;
    const Localizer& localizer;
  };

  explicit ShortcutTestSession(Collaborators collaborators);
  ShortcutTestSession(const ShortcutTestSession&) = delete;
  ShortcutTestSession& operator=(const ShortcutTestSession&) = delete;

  /// Starts, or starts over, the five seconds. Does nothing where shortcuts cannot run.
  void start();
  /// Stops waiting and forgets the last result, as when the window closes.
  void cancel();

  [[nodiscard]] Phase phase() const { return phase_; }
  [[nodiscard]] int secondsLeft() const { return secondsLeft_; }
  /// The countdown, the time-out, or empty.
  [[nodiscard]] const std::string& status() const { return status_; }
  /// What was pressed, "⌥3" or "⌃S"; empty until a shortcut was seen.
  [[nodiscard]] const std::string& pressed() const { return pressed_; }
  /// What the pressed shortcut would have done; empty until a shortcut was seen.
  [[nodiscard]] const std::string& outcome() const { return outcome_; }

  /// `handler` runs after every change above, until the token ends.
  [[nodiscard]] ObservationToken observe(std::function<void()> handler) {
    return observers_.add(std::move(handler));
  }

private:
  void tick();
  void record(const ShortcutTestMonitor::Observation& observation);
  void stopWaiting();
  void showCountdown();
  [[nodiscard]] std::string describe(const ShortcutTestMonitor::Observation& observation) const;

  Collaborators c_;
  Phase phase_ = Phase::idle;
  int secondsLeft_ = 0;
  std::string status_;
  std::string pressed_;
  std::string outcome_;
  ObserverList<> observers_;
  ObservationToken arming_;
  ObservationToken ticks_;
};

} // namespace quenby
