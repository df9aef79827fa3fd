#include "ui/settings/usage/UsageChartGeometry.hpp"

#include "base/StringFormatter.hpp"
#include "ui/settings/usage/UsageSettingsTexts.hpp"

#include <algorithm>
#include <charconv>
#include <limits>
#include <optional>

namespace quenby {
namespace {

constexpr std::int64_t kLargest = std::numeric_limits<std::int64_t>::max();
/// Grid intervals the scale aims at: enough to read a bar, few enough to stay quiet.
constexpr std::int64_t kTargetIntervals = 4;

std::int64_t saturatedSum(std::int64_t a, std::int64_t b) {
  return b > kLargest - a ? kLargest : a + b;
}

/// The month and day of a "YYYY-MM-DD" key; absent for a key that is not one.
std::optional<std::pair<int, int>> monthAndDay(const UsageDayKey& key) {
  const std::string& text = key.rawValue();
  if (text.size() != 10 || text[4] != '-' || text[7] != '-') {
    return std::nullopt;
  }
  int month = 0;
  int day = 0;
  const char* begin = text.data();
  if (std::from_chars(begin + 5, begin + 7, month).ptr != begin + 7 ||
      std::from_chars(begin + 8, begin + 10, day).ptr != begin + 10 || month < 1 || month > 12 ||
      day < 1 || day > 31) {
    return std::nullopt;
  }
  return std::pair{month, day};
}

std::string dateText(int month, int day, const Localizer& localizer) {
  const auto name =
      localizer.localized(*kUsageMonthAbbreviations[static_cast<std::size_t>(month - 1)]);
  return formatLocalized(localizer.localized(kUsageChartDateText),
                         {std::string_view(name), static_cast<long long>(day)});
}

} // namespace

std::int64_t UsageChartGeometry::niceStep(std::int64_t minimum) {
  for (std::int64_t base = 1;; base *= 10) {
    for (const std::int64_t multiple : {1, 2, 5}) {
      if (multiple * base >= minimum) {
        return multiple * base;
      }
    }
    if (base > kLargest / 10) {
      return kLargest;
    }
  }
}

std::string UsageChartGeometry::categoryTitle(UsageCategory category, const Localizer& localizer) {
  switch (category) {
  case UsageCategory::hud:
    return localizer.localized(kUsageCategoryHUDTitle);
  case UsageCategory::optionDigit:
    return localizer.localized(kUsageCategoryDigitTitle);
  case UsageCategory::optionLetter:
    break;
  }
  return localizer.localized(kUsageCategoryLetterTitle);
}

UsageChartColor UsageChartGeometry::color(UsageCategory category) {
  switch (category) {
  case UsageCategory::hud:
    return UsageChartColor::systemBlue;
  case UsageCategory::optionDigit:
    return UsageChartColor::systemOrange;
  case UsageCategory::optionLetter:
    break;
  }
  return UsageChartColor::systemGreen;
}

UsageChartGeometry UsageChartGeometry::make(const std::vector<UsageCategoryDayRow>& rows,
                                            Size plotSize, const Localizer& localizer) {
  UsageChartGeometry chart;
  chart.plotSize = plotSize;
  for (const auto category : kUsageCategories) {
    chart.legend.push_back({category, categoryTitle(category, localizer)});
  }

  std::int64_t busiest = 0;
  for (const auto& row : rows) {
    if (chart.bars.empty() || chart.bars.back().day != row.day) {
      chart.bars.push_back({row.day, 0, {}});
    }
    auto& bar = chart.bars.back();
    if (row.count > 0) {
      bar.total = saturatedSum(bar.total, row.count);
      bar.segments.push_back({row.category, row.count, {}});
    }
    busiest = std::max(busiest, bar.total);
  }

  const double slot =
      chart.bars.empty() ? 0 : plotSize.width / static_cast<double>(chart.bars.size());
  const double barWidth = slot * kBarFill;
  const auto centre = [&](std::size_t index) { return (static_cast<double>(index) + 0.5) * slot; };

  for (std::size_t index = 0; index < chart.bars.size(); ++index) {
    if (const auto date = monthAndDay(chart.bars[index].day); date && date->second == 1) {
      chart.dateLabels.push_back({centre(index), dateText(date->first, date->second, localizer)});
    }
  }
  // Less than a month shown: the first day says where the axis starts.
  if (chart.dateLabels.empty() && !chart.bars.empty()) {
    if (const auto date = monthAndDay(chart.bars.front().day)) {
      chart.dateLabels.push_back({centre(0), dateText(date->first, date->second, localizer)});
    }
  }

  chart.isEmpty = busiest == 0;
  if (chart.isEmpty) {
    chart.emptyText = localizer.localized(kUsageChartEmptyText);
    return chart;
  }

  const std::int64_t step =
      niceStep(busiest / kTargetIntervals + (busiest % kTargetIntervals != 0));
  const std::int64_t intervals = busiest / step + (busiest % step != 0);
  chart.scaleMaximum = intervals > kLargest / step ? kLargest : intervals * step;
  const double scale = plotSize.height / static_cast<double>(chart.scaleMaximum);
  for (std::int64_t value = 0;; value += step) {
    chart.ticks.push_back(
        {value, plotSize.height - static_cast<double>(value) * scale, std::to_string(value)});
    if (value > chart.scaleMaximum - step) {
      break;
    }
  }

  for (std::size_t index = 0; index < chart.bars.size(); ++index) {
    const double x = static_cast<double>(index) * slot + (slot - barWidth) / 2;
    double base = plotSize.height;
    for (auto& segment : chart.bars[index].segments) {
      const double height = static_cast<double>(segment.count) * scale;
      segment.frame = {x, base - height, barWidth, height};
      base -= height;
    }
  }
  return chart;
}

} // namespace quenby
