#include "quenbyctl/UsageChartSVGWriter.hpp"

#include "quenbyctl/SVGText.hpp"

#include <sstream>
#include <string_view>

namespace quenby {
namespace {

constexpr std::string_view kFontFamily =
    "-apple-system, BlinkMacSystemFont, 'SF Pro Text', 'Helvetica Neue', Helvetica, Arial, "
    "sans-serif";
constexpr double kLeftMargin = 56;
constexpr double kRightMargin = 24;
constexpr double kTopMargin = 48;
constexpr double kBottomMargin = 72;
constexpr double kLegendSwatch = 10;
constexpr double kLegendSpacing = 28;
/// A rough width of one character of the legend's 12-point text, to place the next entry.
constexpr double kLegendCharacterWidth = 6.5;
constexpr std::string_view kGridColor = "#D1D1D6";
constexpr std::string_view kLabelColor = "#6E6E73";
constexpr std::string_view kTextColor = "#1D1D1F";

/// The light appearance's sRGB values of the system colours the page draws with.
std::string_view fill(UsageChartColor color) {
  switch (color) {
  case UsageChartColor::systemBlue:
    return "#007AFF";
  case UsageChartColor::systemOrange:
    return "#FF9500";
  case UsageChartColor::systemGreen:
    break;
  }
  return "#34C759";
}

} // namespace

std::string UsageChartSVGWriter::write(const UsageChartGeometry& chart, const std::string& title) {
  const Size plot = chart.plotSize;
  const double width = kLeftMargin + plot.width + kRightMargin;
  const double height = kTopMargin + plot.height + kBottomMargin;
  std::ostringstream out;
  out << "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" << svgNumber(width) << "\" height=\""
      << svgNumber(height) << "\" viewBox=\"0 0 " << svgNumber(width) << " " << svgNumber(height)
      << "\" font-family=\"" << kFontFamily << "\">\n";
  out << "<title>" << svgEscaped(title) << "</title>\n";
  out << "<rect width=\"" << svgNumber(width) << "\" height=\"" << svgNumber(height)
      << "\" fill=\"#FFFFFF\"/>\n";
  out << "<text x=\"" << svgNumber(kLeftMargin) << "\" y=\"28\" font-size=\"15\" "
      << "font-weight=\"600\" fill=\"" << kTextColor << "\">" << svgEscaped(title) << "</text>\n";

  out << "<g transform=\"translate(" << svgNumber(kLeftMargin) << " " << svgNumber(kTopMargin)
      << ")\">\n";
  for (const auto& tick : chart.ticks) {
    out << "<line x1=\"0\" y1=\"" << svgNumber(tick.y) << "\" x2=\"" << svgNumber(plot.width)
        << "\" y2=\"" << svgNumber(tick.y) << "\" stroke=\"" << kGridColor
        << "\" stroke-width=\"1\"/>\n";
    out << "<text x=\"-8\" y=\"" << svgNumber(tick.y + 4) << "\" font-size=\"11\" "
        << "text-anchor=\"end\" fill=\"" << kLabelColor << "\">" << svgEscaped(tick.label)
        << "</text>\n";
  }
  for (const auto& bar : chart.bars) {
    for (const auto& segment : bar.segments) {
      out << "<rect x=\"" << svgNumber(segment.frame.x) << "\" y=\"" << svgNumber(segment.frame.y)
          << "\" width=\"" << svgNumber(segment.frame.width) << "\" height=\""
          << svgNumber(segment.frame.height) << "\" fill=\""
          << fill(UsageChartGeometry::color(segment.category)) << "\"/>\n";
    }
  }
  out << "<line x1=\"0\" y1=\"" << svgNumber(plot.height) << "\" x2=\"" << svgNumber(plot.width)
      << "\" y2=\"" << svgNumber(plot.height) << "\" stroke=\"" << kLabelColor
      << "\" stroke-width=\"1\"/>\n";
  for (const auto& label : chart.dateLabels) {
    out << "<text x=\"" << svgNumber(label.x) << "\" y=\"" << svgNumber(plot.height + 18)
        << "\" font-size=\"11\" text-anchor=\"middle\" fill=\"" << kLabelColor << "\">"
        << svgEscaped(label.text) << "</text>\n";
  }
  if (chart.isEmpty) {
    out << "<text x=\"" << svgNumber(plot.width / 2) << "\" y=\"" << svgNumber(plot.height / 2)
        << "\" font-size=\"13\" text-anchor=\"middle\" fill=\"" << kLabelColor << "\">"
        << svgEscaped(chart.emptyText) << "</text>\n";
  }
  double x = 0;
  const double legendY = plot.height + 44;
  for (const auto& entry : chart.legend) {
    out << "<rect x=\"" << svgNumber(x) << "\" y=\"" << svgNumber(legendY - kLegendSwatch)
        << "\" width=\"" << svgNumber(kLegendSwatch) << "\" height=\"" << svgNumber(kLegendSwatch)
        << "\" rx=\"2\" fill=\"" << fill(UsageChartGeometry::color(entry.category)) << "\"/>\n";
    out << "<text x=\"" << svgNumber(x + kLegendSwatch + 6) << "\" y=\"" << svgNumber(legendY)
        << "\" font-size=\"12\" fill=\"" << kTextColor << "\">" << svgEscaped(entry.title)
        << "</text>\n";
    x += kLegendSwatch + 6 + static_cast<double>(entry.title.size()) * kLegendCharacterWidth +
         kLegendSpacing;
  }
  out << "</g>\n</svg>\n";
  return out.str();
}

} // namespace quenby
