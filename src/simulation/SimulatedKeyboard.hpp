#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <string_view>

namespace quenby {

/// The physical keyboard of the simulated Mac and the keyboard privacy grants. It belongs to the
/// world: a key held across a relaunch is still held.
class SimulatedKeyboard {
public:
  /// The virtual key code of a modifier named as the script names it ("left-option", …).
  [[nodiscard]] static std::optional<std::uint16_t> modifierKeyCode(std::string_view name);

  [[nodiscard]] bool isDown(std::uint16_t keyCode) const { return held_.contains(keyCode); }
  void setDown(std::uint16_t keyCode, bool down) {
    if (down) {
      held_.insert(keyCode);
    } else {
      held_.erase(keyCode);
    }
  }
  /// The event flags of the modifiers held now: the side-independent bits and each side's
  /// device-dependent bit, as the system sets them.
  [[nodiscard]] std::uint64_t flags() const;

  enum class Layout { us, azerty, cyrillic };

  /// Whether a keyboard tap receives key events now: not while secure keyboard entry is on, and
  /// not while the system shows a grant it no longer honours.
  [[nodiscard]] bool tapHearsKeys() const { return !secureInputHolder && !tapDeaf; }

  bool accessibilityGranted = true;
  bool inputMonitoringGranted = true;
  /// As macOS keeps them: the layout selected last, and the last Latin one, which stands in where
  /// Latin letters are needed.
  void selectLayout(Layout selected) {
    layout = selected;
    if (selected != Layout::cyrillic) {
      asciiCapableLayout = selected;
    }
  }

  /// The keyboard layout the user has selected.
  Layout layout = Layout::us;
  Layout asciiCapableLayout = Layout::us;
  /// The name of the application holding secure keyboard entry, while one does.
  std::optional<std::string> secureInputHolder;
  bool tapDeaf = false;
  /// Key-downs the system has counted, whether or not a tap received them.
  std::uint64_t systemKeyDownCount = 0;

private:
  std::set<std::uint16_t> held_;
};

} // namespace quenby
