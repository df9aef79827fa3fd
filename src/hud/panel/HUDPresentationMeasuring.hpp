#pragma once

#include <cstdint>

namespace quenby {

/// The steps from a recognised gesture to the HUD's first frame on screen.
enum class HUDPresentationPhase : std::uint8_t {
  recognition,
  snapshotApplied,
  panelOrdered,
  firstFrameCommitted,
};

/// Times one presentation of the HUD at a time, from the gesture to the first frame.
class HUDPresentationMeasuring {
public:
  virtual ~HUDPresentationMeasuring() = default;
  /// Starts a measurement, cancelling one still open.
  virtual void beginPresentation() = 0;
  /// Only while a measurement is open.
  virtual void mark(HUDPresentationPhase phase) = 0;
  virtual void completePresentation() = 0;
  virtual void cancelPresentation() = 0;
};

/// Measures nothing.
class InertHUDPresentationMeasurer final : public HUDPresentationMeasuring {
public:
  void beginPresentation() override {}
  void mark(HUDPresentationPhase) override {}
  void completePresentation() override {}
  void cancelPresentation() override {}
};

} // namespace quenby
