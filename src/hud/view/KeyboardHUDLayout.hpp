#pragma once

#include "base/Geometry.hpp"
#include "data/AppPreferences.hpp"
#include "hud/view/HUDKey.hpp"

#include <algorithm>
#include <array>
#include <optional>
#include <span>

namespace quenby {

/// One row of the HUD's keyboard: its keys and how far it is indented, in key widths.
struct KeyboardHUDRowDefinition {
  double leadingOffsetUnits = 0;
  std::span<const HUDKey> keys;

  friend bool operator==(const KeyboardHUDRowDefinition& a, const KeyboardHUDRowDefinition& b) {
    return a.leadingOffsetUnits == b.leadingOffsetUnits &&
           std::equal(a.keys.begin(), a.keys.end(), b.keys.begin(), b.keys.end());
  }
};

/// The HUD's geometry in unscaled points, and the same scaled for a HUD size. Frames are in the
/// panel's content view with the origin at its top left and y growing downwards; the drawing
/// (AppKit and SVG) and the click hit test all take their frames from here.
class KeyboardHUDLayout {
public:
  struct Metrics {
    double scale = 1.0;
  };

  static constexpr double kKeyWidth = 60;
  static constexpr double kKeyGap = 8;
  static constexpr double kRowHeight = 64;
  static constexpr double kRowGap = 10;
  /// Around the keys, inside the rounded background.
  static constexpr double kInnerPadding = 22;
  /// Around the background, room for its shadow.
  static constexpr double kOuterPadding = 28;
  static constexpr double kCornerRadius = 22;
  /// The panel's content before scaling; the design canvas is centred in it.
  static constexpr Size kBaseContentSize{820, 390};

  /// The four rows: digits 1–9, then the three letter rows of a US keyboard.
  [[nodiscard]] static std::span<const KeyboardHUDRowDefinition> rows();

  [[nodiscard]] static double scale(HUDSizePreference size);
  [[nodiscard]] static Metrics metrics(HUDSizePreference size) { return {scale(size)}; }
  /// The panel's content size for `size`: 820 × 390 points times the scale.
  [[nodiscard]] static Size contentSize(HUDSizePreference size);

  /// Unscaled: a row's width, the widest row's (699) and the keyboard's height (286).
  [[nodiscard]] static double rowWidth(const KeyboardHUDRowDefinition& row);
  [[nodiscard]] static double keyboardWidth();
  [[nodiscard]] static double keyboardHeight();
  /// Unscaled: the keyboard plus 50 points of padding on every side (799 × 386).
  [[nodiscard]] static Size canvasSize();

  /// Scaled, in content-view coordinates: the design canvas, the rounded background, each key.
  [[nodiscard]] static Rect canvasFrame(Metrics metrics);
  [[nodiscard]] static Rect backgroundFrame(Metrics metrics);
  /// Absent for a key the HUD does not show (Escape, other keys).
  [[nodiscard]] static std::optional<Rect> keyFrame(HUDKey key, Metrics metrics);
  /// The settings button in the background's top-right corner.
  [[nodiscard]] static Rect settingsButtonFrame(Metrics metrics);

  /// The key whose frame contains `point` (content-view coordinates, y down), if any.
  [[nodiscard]] static std::optional<HUDKey> hitTest(Point point, Metrics metrics);
};

} // namespace quenby
