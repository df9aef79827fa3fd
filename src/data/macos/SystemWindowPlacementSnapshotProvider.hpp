#pragma once

#include "data/WindowPlacementSnapshotProviding.hpp"

namespace quenby {

/// The screens and the mouse as AppKit reports them now. Main thread only (AppKit); no state.
class SystemWindowPlacementSnapshotProvider final : public WindowPlacementSnapshotProviding {
public:
  [[nodiscard]] WindowPlacementSnapshot snapshot() const override;
};

} // namespace quenby
