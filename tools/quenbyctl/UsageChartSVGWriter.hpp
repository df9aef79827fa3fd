#pragma once

#include "ui/settings/usage/UsageChartGeometry.hpp"

#include <string>

namespace quenby {

/// Draws the Usage page's daily chart as an SVG document: the same geometry the page draws, with
/// a `<title>`, the y axis's grid and labels, the dates and the legend around the plot. Numbers
/// are written with at most two decimals, so equal input gives equal bytes.
class UsageChartSVGWriter {
public:
  /// The plot's size the picture is laid out for; the margins hold the labels and the legend.
  static constexpr Size kPlotSize{640, 220};

  [[nodiscard]] static std::string write(const UsageChartGeometry& chart, const std::string& title);
};

} // namespace quenby
