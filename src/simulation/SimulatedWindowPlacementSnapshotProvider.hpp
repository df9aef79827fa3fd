#pragma once

#include "data/WindowPlacementSnapshotProviding.hpp"
#include "simulation/SimulatedWorld.hpp"

namespace quenby {

/// Reads the simulated screens and pointer at the moment of asking, as the system would.
class SimulatedWindowPlacementSnapshotProvider final : public WindowPlacementSnapshotProviding {
public:
  explicit SimulatedWindowPlacementSnapshotProvider(const SimulatedWorld& world) : world_(world) {}
  [[nodiscard]] WindowPlacementSnapshot snapshot() const override;

private:
  const SimulatedWorld& world_;
};

} // namespace quenby
