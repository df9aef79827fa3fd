#include "quenbyctl/UsageCommand.hpp"

#include "data/usage/FixedOffsetUsageCalendar.hpp"
#include "data/usage/UsageAnalyticsSnapshot.hpp"
#include "data/usage/UsageAnalyticsStore.hpp"
#include "quenbyctl/DefaultsFile.hpp"
#include "quenbyctl/UsageChartSVGWriter.hpp"
#include "ui/settings/usage/UsageSettingsTexts.hpp"
#include "ui/settings/usage/UsageSettingsViewModel.hpp"

#include <algorithm>
#include <charconv>
#include <fstream>
#include <iomanip>
#include <nlohmann/json.hpp>
#include <optional>
#include <string_view>
#include <variant>

namespace quenby {
namespace {

constexpr std::string_view kUsage =
    "usage: quenbyctl usage [--json|--csv|--svg FILE] [--defaults FILE] [--today YYYY-MM-DD]";
/// How many applications the text lists per range.
constexpr std::size_t kTopApplications = 10;

enum class UsageFormat { text, json, csv, svg };

struct UsageOptions {
  UsageFormat format = UsageFormat::text;
  std::string svg;
  std::optional<std::string> defaults;
  std::optional<std::chrono::year_month_day> today;
};

int usageError(std::ostream& err, std::string_view problem) {
  err << "quenbyctl usage: " << problem << '\n' << kUsage << '\n';
  return 2;
}

std::optional<std::chrono::year_month_day> parseDay(std::string_view text) {
  int year = 0;
  unsigned month = 0;
  unsigned day = 0;
  const char* end = text.data() + text.size();
  if (text.size() != 10 || text[4] != '-' || text[7] != '-' ||
      std::from_chars(text.data(), text.data() + 4, year).ptr != text.data() + 4 ||
      std::from_chars(text.data() + 5, text.data() + 7, month).ptr != text.data() + 7 ||
      std::from_chars(text.data() + 8, end, day).ptr != end) {
    return std::nullopt;
  }
  const std::chrono::year_month_day date{std::chrono::year{year}, std::chrono::month{month},
                                         std::chrono::day{day}};
  return date.ok() ? std::optional(date) : std::nullopt;
}

/// The options, or the exit status of a usage error (already reported).
std::variant<UsageOptions, int> parseOptions(const std::vector<std::string>& arguments,
                                             std::ostream& out, std::ostream& err) {
  UsageOptions options;
  bool formatChosen = false;
  const auto choose = [&](UsageFormat format) {
    const bool again = formatChosen;
    formatChosen = true;
    options.format = format;
    return !again;
  };
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& argument = arguments[i];
    if (argument == "--help" || argument == "-h") {
      out << kUsage << '\n';
      return 0;
    }
    if (argument == "--json" || argument == "--csv") {
      if (!choose(argument == "--json" ? UsageFormat::json : UsageFormat::csv)) {
        return usageError(err, "choose one of --json, --csv and --svg");
      }
      continue;
    }
    if (argument != "--svg" && argument != "--defaults" && argument != "--today") {
      return usageError(err, "unexpected argument '" + argument + "'");
    }
    if (i + 1 == arguments.size()) {
      return usageError(err, argument + " needs a value");
    }
    const std::string& value = arguments[++i];
    if (argument == "--svg") {
      if (!choose(UsageFormat::svg)) {
        return usageError(err, "choose one of --json, --csv and --svg");
      }
      options.svg = value;
    } else if (argument == "--defaults") {
      options.defaults = value;
    } else {
      options.today = parseDay(value);
      if (!options.today) {
        return usageError(err, "--today must be a date as YYYY-MM-DD, not '" + value + "'");
      }
    }
  }
  return options;
}

nlohmann::ordered_json appRowsJSON(const std::vector<UsageAppRow>& rows) {
  auto array = nlohmann::ordered_json::array();
  for (const auto& row : rows) {
    array.push_back({{"bundleIdentifier", row.bundleIdentifier},
                     {"displayName", row.displayName},
                     {"successCount", row.successCount},
                     {"failureCount", row.failureCount}});
  }
  return array;
}

void writeJSON(const UsageAnalyticsSnapshot& snapshot, std::ostream& out) {
  nlohmann::ordered_json document;
  auto totals = nlohmann::ordered_json::object();
  for (const auto category : kUsageCategories) {
    totals[std::string(usageCategoryRawValue(category))] = snapshot.lifetimeTotals[category];
  }
  document["lifetimeTotals"] = std::move(totals);
  auto days = nlohmann::ordered_json::array();
  for (const auto& row : snapshot.last90DayCategoryRows) {
    days.push_back({{"day", row.day.rawValue()},
                    {"category", usageCategoryRawValue(row.category)},
                    {"count", row.count}});
  }
  document["last90DayCategoryRows"] = std::move(days);
  document["last90DayAppRows"] = appRowsJSON(snapshot.last90DayAppRows);
  document["allTimeAppRows"] = appRowsJSON(snapshot.allTimeAppRows);
  // Names come from other applications' bundles: never let bad UTF-8 stop the output.
  out << document.dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace) << '\n';
}

void writeCSV(const UsageAnalyticsSnapshot& snapshot, std::ostream& out) {
  out << "day,category,count\n";
  for (const auto& row : snapshot.last90DayCategoryRows) {
    out << row.day.rawValue() << ',' << usageCategoryRawValue(row.category) << ',' << row.count
        << '\n';
  }
}

void writeApplications(const LocalizedText& heading, const std::vector<UsageAppRow>& rows,
                       const Localizer& localizer, std::ostream& out) {
  out << '\n' << localizer.localized(heading) << '\n';
  if (rows.empty()) {
    out << "  -\n";
    return;
  }
  const auto shown = std::min(rows.size(), kTopApplications);
  std::size_t nameWidth = localizer.localized(kUsageApplicationColumnTitle).size();
  for (std::size_t i = 0; i < shown; ++i) {
    nameWidth = std::max(nameWidth, rows[i].displayName.size());
  }
  out << "  " << std::left << std::setw(static_cast<int>(nameWidth))
      << localizer.localized(kUsageApplicationColumnTitle) << std::right << "  " << std::setw(8)
      << localizer.localized(kUsageOpenedColumnTitle) << "  " << std::setw(8)
      << localizer.localized(kUsageFailedColumnTitle) << '\n';
  for (std::size_t i = 0; i < shown; ++i) {
    out << "  " << std::left << std::setw(static_cast<int>(nameWidth)) << rows[i].displayName
        << std::right << "  " << std::setw(8) << rows[i].successCount << "  " << std::setw(8)
        << rows[i].failureCount << '\n';
  }
  if (rows.size() > shown) {
    out << "  (" << rows.size() - shown << " more)\n";
  }
}

void writeText(const UsageAnalyticsSnapshot& snapshot, const Localizer& localizer,
               std::ostream& out) {
  for (const auto& line : UsageSettingsViewModel::totalsLines(snapshot, localizer)) {
    out << line << '\n';
  }
  writeApplications(kUsageRangeLast90DaysTitle, snapshot.last90DayAppRows, localizer, out);
  writeApplications(kUsageRangeAllTimeTitle, snapshot.allTimeAppRows, localizer, out);
}

} // namespace

int runUsageCommand(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err,
                    UsageCommandDay today, const PropertyListDecoding& decoder) {
  auto parsed = parseOptions(arguments, out, err);
  if (const int* status = std::get_if<int>(&parsed)) {
    return *status;
  }
  const UsageOptions& options = std::get<UsageOptions>(parsed);

  auto file = DefaultsFile::read(options.defaults, decoder);
  if (const auto* problem = std::get_if<std::string>(&file)) {
    err << "quenbyctl usage: " << *problem << '\n';
    return 1;
  }
  auto state = std::get<DefaultsFile>(file).usage();
  if (const auto* problem = std::get_if<std::string>(&state)) {
    err << "quenbyctl usage: " << *problem << '\n';
    return 1;
  }

  const FixedOffsetUsageCalendar utc;
  const UsageCalendar& calendar = options.today ? utc : today.calendar;
  const WallTime now =
      options.today ? WallTime(std::chrono::sys_days(*options.today) + std::chrono::hours{12})
                    : today.now;
  const auto startOfToday = calendar.startOfDay(now);
  if (!startOfToday) {
    err << "quenbyctl usage: the calendar cannot say which day it is\n";
    return 1;
  }
  const auto snapshot = UsageAnalyticsSnapshot::make(
      std::get<StoredUsageState>(state), UsageAnalyticsStore::windowDays(calendar, *startOfToday));

  EnglishLocalizer localizer;
  switch (options.format) {
  case UsageFormat::text:
    writeText(snapshot, localizer, out);
    return 0;
  case UsageFormat::json:
    writeJSON(snapshot, out);
    return 0;
  case UsageFormat::csv:
    writeCSV(snapshot, out);
    return 0;
  case UsageFormat::svg:
    break;
  }
  const auto chart = UsageChartGeometry::make(snapshot.last90DayCategoryRows,
                                              UsageChartSVGWriter::kPlotSize, localizer);
  std::ofstream svg(options.svg, std::ios::binary | std::ios::trunc);
  svg << UsageChartSVGWriter::write(chart, localizer.localized(kUsageChartTitle));
  svg.close();
  if (!svg) {
    err << "quenbyctl usage: cannot write " << options.svg << '\n';
    return 1;
  }
  return 0;
}

} // namespace quenby
