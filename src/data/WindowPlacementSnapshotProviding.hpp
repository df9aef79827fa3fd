#pragma once

#include "data/WindowPlacementSnapshot.hpp"

namespace quenby {

/// Where the screens and the mouse are now; asked each time a window is about to appear.
class WindowPlacementSnapshotProviding {
public:
  virtual ~WindowPlacementSnapshotProviding() = default;
  [[nodiscard]] virtual WindowPlacementSnapshot snapshot() const = 0;
};

/// The inert provider: one 1440×900 screen at the origin, which is also the main one, with the
/// mouse at its centre.
class InertWindowPlacementSnapshotProvider final : public WindowPlacementSnapshotProviding {
public:
  [[nodiscard]] WindowPlacementSnapshot snapshot() const override {
    const Rect screen{0, 0, 1440, 900};
    return {{screen}, screen, Point{720, 450}};
  }
};

} // namespace quenby
