#pragma once

#include "base/WallClock.hpp"

#include <chrono>
#include <cstdint>
#include <optional>

namespace quenby {

/// The user's calendar and time zone, as far as usage analytics need them: which local day a
/// moment falls on. Every answer is optional because a real calendar can refuse one (a date out
/// of its range); the store then skips that day.
class UsageCalendar {
public:
  virtual ~UsageCalendar() = default;
  /// The first moment of the local day that contains `time`.
  [[nodiscard]] virtual std::optional<WallTime> startOfDay(WallTime time) const = 0;
  /// `time` moved by `days` local days (the wall-clock time kept across a daylight-saving change).
  [[nodiscard]] virtual std::optional<WallTime> addingDays(std::int64_t days,
                                                           WallTime time) const = 0;
  /// The local year, month and day of `time`.
  [[nodiscard]] virtual std::optional<std::chrono::year_month_day> day(WallTime time) const = 0;
};

} // namespace quenby
