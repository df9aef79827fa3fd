#pragma once

#include "data/usage/UsageCalendar.hpp"

namespace quenby {

/// The user's current calendar and time zone, asked afresh on every call so that a change of
/// either in System Settings applies to the next count. Any thread; no state.
class SystemUsageCalendar final : public UsageCalendar {
public:
  [[nodiscard]] std::optional<WallTime> startOfDay(WallTime time) const override;
  [[nodiscard]] std::optional<WallTime> addingDays(std::int64_t days, WallTime time) const override;
  [[nodiscard]] std::optional<std::chrono::year_month_day> day(WallTime time) const override;
};

} // namespace quenby
