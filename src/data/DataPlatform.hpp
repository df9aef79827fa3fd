#pragma once

#include "data/WindowPlacementSnapshotProviding.hpp"

#include <memory>

namespace quenby {

/// What preferences and usage data need from the platform: the screens and the mouse, for the
/// placement rule.
struct DataPlatform {
  std::shared_ptr<WindowPlacementSnapshotProviding> windowPlacementSnapshotProvider;

  /// One 1440×900 screen at the origin.
  [[nodiscard]] static DataPlatform inert() {
    return {.windowPlacementSnapshotProvider =
                std::make_shared<InertWindowPlacementSnapshotProvider>()};
  }
};

} // namespace quenby
