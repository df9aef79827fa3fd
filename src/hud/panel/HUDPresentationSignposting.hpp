#pragma once

#include "hud/panel/HUDPresentationMeasuring.hpp"

#include <cstdint>
#include <string_view>

namespace quenby {

/// How a measured presentation ended.
enum class HUDPresentationOutcome : std::uint8_t { completed, cancelled };

/// The name of the interval that spans one presentation, as profiling tools show it.
inline constexpr std::string_view kHUDPresentationIntervalName = "HUDPresentation";

/// The signpost event name of each phase: "Recognition", "SnapshotApplied", "PanelOrdered",
/// "FirstFrameCommitted".
[[nodiscard]] std::string_view hudPresentationSignpostName(HUDPresentationPhase phase);

/// The message that closes the interval: "outcome=completed" or "outcome=cancelled", or
/// "[Error] Interval already ended" when the system found the interval closed already.
[[nodiscard]] std::string_view hudPresentationEndMessage(HUDPresentationOutcome outcome,
                                                         bool intervalAlreadyEnded);

/// Marks presentations for profiling tools: one interval per presentation, one event per phase.
/// One interval is open at a time. Main thread only.
class HUDPresentationSignposting {
public:
  virtual ~HUDPresentationSignposting() = default;
  /// Opens the "HUDPresentation" interval.
  virtual void beginInterval() = 0;
  virtual void emitEvent(HUDPresentationPhase phase) = 0;
  /// Closes the open interval with the outcome's message.
  virtual void endInterval(HUDPresentationOutcome outcome) = 0;
};

/// Marks nothing.
class InertHUDPresentationSignposter final : public HUDPresentationSignposting {
public:
  void beginInterval() override {}
  void emitEvent(HUDPresentationPhase) override {}
  void endInterval(HUDPresentationOutcome) override {}
};

} // namespace quenby
