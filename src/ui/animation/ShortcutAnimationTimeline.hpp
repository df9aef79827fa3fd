#pragma once

#include <optional>

namespace quenby {

/// How the shortcut animation moves: the icon grows from `hiddenScale` to `visibleScale` while it
/// fades in over `appearDuration`, then fades out over `fadeDuration`. Durations in seconds.
struct ShortcutAnimationTimeline {
  double hiddenScale = 1.0;
  double visibleScale = 1.0;
  double appearDuration = 0;
  double fadeDuration = 0;

  [[nodiscard]] static constexpr ShortcutAnimationTimeline normal() {
    return {.hiddenScale = 0.85, .visibleScale = 1.5, .appearDuration = 0.18, .fadeDuration = 0.37};
  }
  /// For the system's reduce-motion setting: a shorter fade and no growth at all.
  [[nodiscard]] static constexpr ShortcutAnimationTimeline reduced() {
    return {.hiddenScale = 1.0, .visibleScale = 1.0, .appearDuration = 0.12, .fadeDuration = 0.28};
  }

  /// From the first frame until nothing is left on screen.
  [[nodiscard]] constexpr double totalDuration() const { return appearDuration + fadeDuration; }
  /// The layer's scale when the appearance begins (it ends at 1, the content being drawn at its
  /// final size); none when the timeline does not scale.
  [[nodiscard]] constexpr std::optional<double> initialLayerScale() const {
    if (hiddenScale == visibleScale) {
      return std::nullopt;
    }
    return hiddenScale / visibleScale;
  }

  friend constexpr bool operator==(const ShortcutAnimationTimeline&,
                                   const ShortcutAnimationTimeline&) = default;
};

} // namespace quenby
