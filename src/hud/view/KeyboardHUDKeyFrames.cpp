#include "hud/view/KeyboardHUDKeyFrames.hpp"

namespace quenby {
namespace {

// Unscaled, inside a 60 × 64 key.
constexpr double kCornerRadius = 10;
constexpr Rect kMappedLabel{6, 4, 16, 13};
constexpr double kMappedLabelFontSize = 11;
constexpr double kUnboundLabelFontSize = 20;
constexpr Rect kIcon{16, 12, 28, 28};
constexpr Rect kCaption{2, 48, 56, 12};
// The caption is 9 points, semibold.
constexpr double kCaptionFontSize = 9;
constexpr Rect kInvalidMark{43, 4, 13, 13};
constexpr Rect kRunningMark{28, 42, 4, 4};

Rect placed(Rect part, Rect key, double scale) {
  return {key.x + part.x * scale, key.y + part.y * scale, part.width * scale, part.height * scale};
}

} // namespace

KeyboardHUDKeyFrames KeyboardHUDKeyFrames::make(Rect key, double scale, bool mapped) {
  return {
      .key = key,
      .cornerRadius = kCornerRadius * scale,
      .borderWidth = scale,
      .label = mapped ? placed(kMappedLabel, key, scale) : key,
      .labelFontSize = (mapped ? kMappedLabelFontSize : kUnboundLabelFontSize) * scale,
      .icon = placed(kIcon, key, scale),
      .caption = placed(kCaption, key, scale),
      .captionFontSize = kCaptionFontSize * scale,
      .invalidMark = placed(kInvalidMark, key, scale),
      .runningMark = placed(kRunningMark, key, scale),
  };
}

} // namespace quenby
