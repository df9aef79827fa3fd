#pragma once

#include "data/usage/UsageCalendar.hpp"

namespace quenby {

/// A proleptic Gregorian calendar at a fixed distance from UTC, with no daylight saving: the
/// inert calendar (UTC), the simulation's and the tests'. Refuses moments whose arithmetic would
/// leave the range of `WallTime`.
class FixedOffsetUsageCalendar final : public UsageCalendar {
public:
  explicit FixedOffsetUsageCalendar(std::chrono::seconds utcOffset = std::chrono::seconds{0});

  [[nodiscard]] std::optional<WallTime> startOfDay(WallTime time) const override;
  [[nodiscard]] std::optional<WallTime> addingDays(std::int64_t days, WallTime time) const override;
  [[nodiscard]] std::optional<std::chrono::year_month_day> day(WallTime time) const override;

private:
  /// `time` in local time, measured from the same epoch; absent when that would overflow.
  [[nodiscard]] std::optional<WallTime> local(WallTime time) const;

  WallTime::duration offset_;
};

} // namespace quenby
