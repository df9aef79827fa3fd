#include "hud/panel/HUDPerformanceMetrics.hpp"

#include <utility>

namespace quenby {

HUDPerformanceMetrics::HUDPerformanceMetrics(Now nowNanoseconds, PhaseObserver phaseObserver,
                                             HUDPresentationSignposting& signposter)
    : nowNanoseconds_(std::move(nowNanoseconds)), phaseObserver_(std::move(phaseObserver)),
      signposter_(signposter) {}

void HUDPerformanceMetrics::beginPresentation() {
  cancelPresentation();
  startedAt_ = nowNanoseconds_();
  signposter_.beginInterval();
  emit(HUDPresentationPhase::recognition);
}

void HUDPerformanceMetrics::mark(HUDPresentationPhase phase) {
  if (startedAt_) {
    emit(phase);
  }
}

void HUDPerformanceMetrics::completePresentation() {
  if (!startedAt_) {
    return;
  }
  const std::uint64_t now = nowNanoseconds_();
  const std::uint64_t start = *std::exchange(startedAt_, std::nullopt);
  if (now < start) {
    signposter_.endInterval(HUDPresentationOutcome::cancelled);
    return;
  }
  samples_.push_back(static_cast<double>(now - start) / 1'000'000.0);
  emit(HUDPresentationPhase::firstFrameCommitted);
  signposter_.endInterval(HUDPresentationOutcome::completed);
}

void HUDPerformanceMetrics::cancelPresentation() {
  if (!startedAt_) {
    return;
  }
  startedAt_.reset();
  signposter_.endInterval(HUDPresentationOutcome::cancelled);
}

void HUDPerformanceMetrics::emit(HUDPresentationPhase phase) {
  signposter_.emitEvent(phase);
  if (phaseObserver_) {
    phaseObserver_(phase);
  }
}

} // namespace quenby
