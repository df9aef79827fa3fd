#include "data/usage/FixedOffsetUsageCalendar.hpp"

namespace quenby {

namespace {

using WallDuration = WallTime::duration;
using Days = std::chrono::duration<std::int64_t, std::ratio<86400>>;

/// `time + delta` when both it and its local-day arithmetic stay representable. A day of margin
/// at each end keeps `floor` to a day from overflowing too.
std::optional<WallTime> shifted(WallTime time, WallDuration delta) {
  constexpr WallDuration margin = std::chrono::duration_cast<WallDuration>(Days{2});
  const WallDuration lowest = WallDuration::min() + margin;
  const WallDuration highest = WallDuration::max() - margin;
  const WallDuration since = time.time_since_epoch();
  if (delta > WallDuration::zero() ? since > highest - delta : since < lowest - delta) {
    return std::nullopt;
  }
  return time + delta;
}

} // namespace

FixedOffsetUsageCalendar::FixedOffsetUsageCalendar(std::chrono::seconds utcOffset)
    : offset_(std::chrono::duration_cast<WallDuration>(utcOffset)) {}

std::optional<WallTime> FixedOffsetUsageCalendar::local(WallTime time) const {
  return shifted(time, offset_);
}

std::optional<WallTime> FixedOffsetUsageCalendar::startOfDay(WallTime time) const {
  const auto local = this->local(time);
  if (!local) {
    return std::nullopt;
  }
  return std::chrono::floor<Days>(*local) - offset_;
}

std::optional<WallTime> FixedOffsetUsageCalendar::addingDays(std::int64_t days,
                                                             WallTime time) const {
  // Beyond this many days the product itself would overflow the nanosecond count.
  constexpr std::int64_t limit = 100'000;
  if (days > limit || days < -limit) {
    return std::nullopt;
  }
  return shifted(time, std::chrono::duration_cast<WallDuration>(Days{days}));
}

std::optional<std::chrono::year_month_day> FixedOffsetUsageCalendar::day(WallTime time) const {
  const auto local = this->local(time);
  if (!local) {
    return std::nullopt;
  }
  return std::chrono::year_month_day{std::chrono::floor<std::chrono::days>(*local)};
}

} // namespace quenby
