#pragma once

#include "base/Geometry.hpp"

namespace quenby {

/// The parts of one key, scaled, in the same content-view coordinates as the key's frame. An
/// unbound key shows only its label, large and centred; a mapped key moves the label to its top
/// left corner and shows the icon, the caption under it, and the marks.
struct KeyboardHUDKeyFrames {
  Rect key;
  double cornerRadius = 0;
  double borderWidth = 0;
  /// The label is centred in `label` when unbound, left-aligned and vertically centred when
  /// mapped.
  Rect label;
  double labelFontSize = 0;
  Rect icon;
  /// Centred, one line.
  Rect caption;
  double captionFontSize = 0;
  Rect invalidMark;
  /// A dot, as wide as it is high.
  Rect runningMark;

  /// `key` is the key's scaled frame from `KeyboardHUDLayout::keyFrame`.
  [[nodiscard]] static KeyboardHUDKeyFrames make(Rect key, double scale, bool mapped);

  friend bool operator==(const KeyboardHUDKeyFrames&, const KeyboardHUDKeyFrames&) = default;
};

} // namespace quenby
