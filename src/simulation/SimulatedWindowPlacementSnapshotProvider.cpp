#include "simulation/SimulatedWindowPlacementSnapshotProvider.hpp"

namespace quenby {

WindowPlacementSnapshot SimulatedWindowPlacementSnapshotProvider::snapshot() const {
  WindowPlacementSnapshot snapshot;
  for (const auto& screen : world_.screens()) {
    snapshot.screenFrames.push_back(screen.frame);
    if (screen.isMain && !snapshot.mainFrame) {
      snapshot.mainFrame = screen.frame;
    }
  }
  snapshot.mouseLocation = world_.mouse();
  return snapshot;
}

} // namespace quenby
