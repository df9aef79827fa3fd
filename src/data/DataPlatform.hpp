#pragma once

#include "data/WindowPlacementSnapshotProviding.hpp"
#include "data/usage/FixedOffsetUsageCalendar.hpp"
#include "data/usage/UsageCalendar.hpp"

#include <memory>

namespace quenby {

/// What preferences and usage data need from the platform: the screens and the mouse, for the
/// placement rule; the user's calendar, for the days of usage analytics.
struct DataPlatform {
  std::shared_ptr<WindowPlacementSnapshotProviding> windowPlacementSnapshotProvider;
  std::shared_ptr<UsageCalendar> calendar;

  /// One 1440×900 screen at the origin; days in UTC.
  [[nodiscard]] static DataPlatform inert() {
    return {.windowPlacementSnapshotProvider =
                std::make_shared<InertWindowPlacementSnapshotProvider>(),
            .calendar = std::make_shared<FixedOffsetUsageCalendar>()};
  }
};

} // namespace quenby
