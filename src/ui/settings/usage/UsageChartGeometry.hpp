#pragma once

#include "base/Geometry.hpp"
#include "base/Localizer.hpp"
#include "data/usage/UsageAnalyticsSnapshot.hpp"

#include <cstdint>
#include <string>
#include <vector>

namespace quenby {

/// One category's part of a day's bar.
struct UsageChartSegment {
  UsageCategory category;
  std::int64_t count = 0;
  Rect frame;
  friend bool operator==(const UsageChartSegment&, const UsageChartSegment&) = default;
};

/// One day. Every day has its slot, so a day without switches leaves a visible hole.
struct UsageChartBar {
  UsageDayKey day;
  std::int64_t total = 0;
  /// The categories with a count, in category order, stacked upwards from the baseline.
  std::vector<UsageChartSegment> segments;
};

/// A horizontal grid line of the y axis and its label.
struct UsageChartTick {
  std::int64_t value = 0;
  double y = 0;
  std::string label;
};

/// A date under the x axis, centred on its day's slot.
struct UsageChartDateLabel {
  double x = 0;
  std::string text;
};

/// The system colour that stands for a category, the same in the legend and the bars.
enum class UsageChartColor { systemBlue, systemOrange, systemGreen };

struct UsageChartLegendEntry {
  UsageCategory category;
  std::string title;
};

/// The daily chart of the Usage page, laid out in a plot of a given size: stacked bars, a y axis
/// on a 1-2-5 scale, a few dates and the legend. Coordinates are in points from the plot's top
/// left, y growing downwards; the AppKit view and the SVG picture both draw exactly this.
struct UsageChartGeometry {
  Size plotSize;
  std::vector<UsageChartBar> bars;
  /// From 0 up to `scaleMaximum`, which is at least the busiest day.
  std::vector<UsageChartTick> ticks;
  std::int64_t scaleMaximum = 0;
  std::vector<UsageChartDateLabel> dateLabels;
  std::vector<UsageChartLegendEntry> legend;
  /// True when no day has a switch: no ticks, no segments, and `emptyText` to show instead.
  bool isEmpty = true;
  std::string emptyText;

  /// Share of a day's slot its bar fills; the rest is the gap between bars.
  static constexpr double kBarFill = 0.75;

  /// `rows` as the snapshot has them: oldest day first, a day's categories together.
  [[nodiscard]] static UsageChartGeometry make(const std::vector<UsageCategoryDayRow>& rows,
                                               Size plotSize, const Localizer& localizer);
  /// The smallest of 1, 2, 5, 10, 20, 50, … that is at least `minimum` (which is at least 1).
  [[nodiscard]] static std::int64_t niceStep(std::int64_t minimum);
  [[nodiscard]] static std::string categoryTitle(UsageCategory category,
                                                 const Localizer& localizer);
  [[nodiscard]] static UsageChartColor color(UsageCategory category);
};

} // namespace quenby
