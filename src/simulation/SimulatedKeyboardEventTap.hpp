#pragma once

#include "hud/tap/SystemKeyboardEventTapDependencies.hpp"
#include "simulation/ScenarioEventRecorder.hpp"
#include "simulation/SimulatedKeyboard.hpp"

#include <memory>

namespace quenby {

/// The system's side of one process's keyboard tap: creation needs the Accessibility grant, as
/// an active tap does on a Mac; every key event the script makes is delivered to the installed
/// callback while the tap is enabled and recorded as a `key` line with its verdict; the script
/// can switch the tap off and make the next re-enable fail.
class SimulatedKeyboardEventTap : public std::enable_shared_from_this<SimulatedKeyboardEventTap> {
public:
  SimulatedKeyboardEventTap(const SimulatedKeyboard& keyboard,
                            const ScenarioEventRecorder& recorder)
      : keyboard_(keyboard), recorder_(recorder) {}
  SimulatedKeyboardEventTap(const SimulatedKeyboardEventTap&) = delete;
  SimulatedKeyboardEventTap& operator=(const SimulatedKeyboardEventTap&) = delete;

  /// The eight operations over this object; they share its ownership, so it lives as long as
  /// the tap that uses them. Call only on an object owned by a shared pointer.
  [[nodiscard]] SystemKeyboardEventTapDependencies dependencies();

  /// A key event with the flags of the modifiers held now; recorded with what became of it when
  /// a tap saw it.
  void deliverKey(std::uint16_t keyCode, bool down, bool isRepeat);
  /// A modifier's flags-changed event; never recorded, as it always goes on.
  void deliverFlagsChanged(std::uint16_t keyCode);
  /// The system switches the tap off and tells its callback so.
  void disable(KeyboardTapEventType reason);
  /// The next re-enable does not take.
  void failNextReenable() { nextReenableFails_ = true; }

  [[nodiscard]] bool isEnabled() const { return callback_ != nullptr && enabled_; }

private:
  EventTapDisposition deliver(const KeyboardTapEvent& event) const;

  const SimulatedKeyboard& keyboard_;
  const ScenarioEventRecorder& recorder_;
  EventTapCallback callback_ = nullptr;
  void* userInfo_ = nullptr;
  bool enabled_ = false;
  bool nextReenableFails_ = false;
  // Stand-ins the handles point at; only their addresses matter.
  char port_ = 0;
  char source_ = 0;
  char runLoop_ = 0;
};

} // namespace quenby
