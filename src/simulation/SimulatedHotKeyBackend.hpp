#pragma once

#include "base/ObservationToken.hpp"
#include "shortcuts/hotkeys/OptionDigitHotKeyBackend.hpp"
#include "shortcuts/hotkeys/SystemSymbolicHotKeyReading.hpp"
#include "simulation/ScenarioEventRecorder.hpp"
#include "simulation/SimulatedWorld.hpp"

namespace quenby {

/// One process's hot keys on the simulated Mac. Registration passes are reported as one
/// `hotkeys` line each: changes are gathered and reported once the pass is over (`flush`, or the
/// main queue's next turn). `world` and `recorder` must outlive it.
class SimulatedHotKeyBackend final : public OptionDigitHotKeyBackend,
                                     public SystemSymbolicHotKeyReading {
public:
  SimulatedHotKeyBackend(SimulatedWorld& world, const ScenarioEventRecorder& recorder)
      : world_(world), recorder_(recorder) {}

  std::int32_t installHandler(PressHandler handler) override;
  void removeHandler() override;
  std::int32_t registerHotKey(std::uint32_t keyCode, std::uint32_t modifierFlags,
                              std::uint32_t identifier) override;
  void unregisterHotKey(std::uint32_t identifier) override;

  /// The system's shortcut table, built from the script's `system-shortcut` lines.
  [[nodiscard]] std::optional<PropertyListValue> copySymbolicHotKeys() override;

  /// Delivers a hot-key event as the system would; our handler sees only our own.
  void deliver(std::uint32_t signature, std::uint32_t identifier);
  /// Prints the `hotkeys` line for the pass just finished, when it changed anything.
  void flush();

private:
  void scheduleFlush();

  SimulatedWorld& world_;
  const ScenarioEventRecorder& recorder_;
  PressHandler handler_;
  ObservationToken pendingFlush_;
};

} // namespace quenby
