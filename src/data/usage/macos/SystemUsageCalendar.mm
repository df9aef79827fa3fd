// NSCalendar.currentCalendar, fetched on each call: it follows the user's calendar, time zone
// and daylight saving as they are now. Holds nothing, so any thread and any lifetime will do.
// Guarantees an answer or none, never a moment outside what WallTime can hold: a date the
// calendar refuses or that would not fit comes back empty, and the store skips that day.

#include "data/usage/macos/SystemUsageCalendar.hpp"

#import <Foundation/Foundation.h>
#include <cmath>

namespace quenby {

namespace {

constexpr WallTime kReferenceDate{std::chrono::sys_days{std::chrono::year{2001} / 1 / 1}};

NSDate* date(WallTime time) {
  return [NSDate
      dateWithTimeIntervalSinceReferenceDate:std::chrono::duration<double>(time - kReferenceDate)
                                                 .count()];
}

std::optional<WallTime> wallTime(NSDate* _Nullable date) {
  if (date == nil) {
    return std::nullopt;
  }
  // WallTime counts nanoseconds in 64 bits: about 292 years either side of 1970.
  constexpr double limit = 8.0e9;
  const NSTimeInterval seconds = date.timeIntervalSinceReferenceDate;
  if (!std::isfinite(seconds) || std::fabs(seconds) > limit) {
    return std::nullopt;
  }
  return kReferenceDate +
         std::chrono::duration_cast<WallTime::duration>(std::chrono::duration<double>(seconds));
}

} // namespace

std::optional<WallTime> SystemUsageCalendar::startOfDay(WallTime time) const {
  @autoreleasepool {
    return wallTime([NSCalendar.currentCalendar startOfDayForDate:date(time)]);
  }
}

std::optional<WallTime> SystemUsageCalendar::addingDays(std::int64_t days, WallTime time) const {
  @autoreleasepool {
    return wallTime([NSCalendar.currentCalendar dateByAddingUnit:NSCalendarUnitDay
                                                           value:static_cast<NSInteger>(days)
                                                          toDate:date(time)
                                                         options:0]);
  }
}

std::optional<std::chrono::year_month_day> SystemUsageCalendar::day(WallTime time) const {
  @autoreleasepool {
    NSInteger year = 0;
    NSInteger month = 0;
    NSInteger day = 0;
    [NSCalendar.currentCalendar getEra:nil year:&year month:&month day:&day fromDate:date(time)];
    // Beyond these, a year_month_day could not hold the components (a year is 16 bits).
    if (year < -32767 || year > 32767 || month < 1 || month > 99 || day < 1 || day > 99) {
      return std::nullopt;
    }
    return std::chrono::year_month_day{std::chrono::year{static_cast<int>(year)},
                                       std::chrono::month{static_cast<unsigned>(month)},
                                       std::chrono::day{static_cast<unsigned>(day)}};
  }
}

} // namespace quenby
