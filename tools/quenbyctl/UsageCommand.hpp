#pragma once

#include "base/PropertyListDecoding.hpp"
#include "base/WallClock.hpp"
#include "data/usage/UsageCalendar.hpp"

#include <ostream>
#include <string>
#include <vector>

namespace quenby {

/// What "today" is for the 90-day window: a moment and the user's calendar.
struct UsageCommandDay {
  WallTime now;
  const UsageCalendar& calendar;
};

/// `quenbyctl usage [--json|--csv|--svg FILE] [--defaults FILE] [--today YYYY-MM-DD]`: the usage
/// analytics kept in a copy of the preferences domain, read without writing anything back. Text
/// by default (lifetime totals and the most used applications); `--json` the Usage page's
/// snapshot; `--csv` one row per day and category; `--svg` the page's daily chart. `--today`
/// ends the window on that day (UTC) instead of `today`'s. `arguments` are those after "usage".
/// Returns the exit status: 0 once written, 1 when the preferences or the document cannot be
/// read or the picture not written, 2 for a usage error.
int runUsageCommand(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err,
                    UsageCommandDay today, const PropertyListDecoding& decoder);

} // namespace quenby
