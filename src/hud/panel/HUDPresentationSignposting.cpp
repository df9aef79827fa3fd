#include "hud/panel/HUDPresentationSignposting.hpp"

namespace quenby {

std::string_view hudPresentationSignpostName(HUDPresentationPhase phase) {
  switch (phase) {
  case HUDPresentationPhase::recognition:
    return "Recognition";
  case HUDPresentationPhase::snapshotApplied:
    return "SnapshotApplied";
  case HUDPresentationPhase::panelOrdered:
    return "PanelOrdered";
  case HUDPresentationPhase::firstFrameCommitted:
    break;
  }
  return "FirstFrameCommitted";
}

std::string_view hudPresentationEndMessage(HUDPresentationOutcome outcome,
                                           bool intervalAlreadyEnded) {
  if (intervalAlreadyEnded) {
    return "[Error] Interval already ended";
  }
  return outcome == HUDPresentationOutcome::completed ? "outcome=completed" : "outcome=cancelled";
}

} // namespace quenby
