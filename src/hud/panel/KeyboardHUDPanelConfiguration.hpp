#pragma once

#include "base/Geometry.hpp"
#include "data/AppPreferences.hpp"

#include <cstdint>
#include <optional>

namespace quenby {

/// The system appearances the HUD can be forced into; none follows the system's.
enum class KeyboardHUDAppearanceName : std::uint8_t { aqua, darkAqua };

/// The panel's fixed make-up: a borderless floating panel that never takes keyboard focus and
/// never activates the application, on every Space and over full-screen applications, that
/// still takes the first click on it. Only the content size and the appearance follow the
/// preferences.
struct KeyboardHUDPanelConfiguration {
  Size contentSize;
  /// The non-activating panel bit alone: no title bar, no border.
  std::uint64_t styleMask = 128;
  /// Joins all Spaces (1), transient (8), full-screen auxiliary (256).
  std::uint64_t collectionBehavior = 265;
  std::optional<KeyboardHUDAppearanceName> appearanceName;
  /// The status-window level.
  std::int64_t level = 25;
  bool isOpaque = false;
  bool backgroundIsClear = true;
  bool ignoresMouseEvents = false;
  bool acceptsFirstMouse = true;
  bool canBecomeKey = false;
  bool canBecomeMain = false;

  [[nodiscard]] static KeyboardHUDPanelConfiguration make(HUDSizePreference size,
                                                          HUDThemePreference theme);

  friend bool operator==(const KeyboardHUDPanelConfiguration&,
                         const KeyboardHUDPanelConfiguration&) = default;
};

/// Light and dark force their appearance; the system theme forces none.
[[nodiscard]] std::optional<KeyboardHUDAppearanceName>
keyboardHUDAppearanceName(HUDThemePreference theme);

/// The panel's alpha for an opacity preference: its percentage over 100.
[[nodiscard]] double keyboardHUDAlpha(HUDOpacityPreference opacity);

} // namespace quenby
