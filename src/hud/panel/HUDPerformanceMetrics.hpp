#pragma once

#include "base/MonotonicClock.hpp"
#include "hud/panel/HUDPresentationMeasuring.hpp"
#include "hud/panel/HUDPresentationSignposting.hpp"

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace quenby {

/// Times each presentation of the HUD from the recognised gesture to its first frame on
/// screen, keeps the completed durations, and marks every phase for profiling tools. Main
/// thread only; the signposter must outlive the metrics.
class HUDPerformanceMetrics final : public HUDPresentationMeasuring {
public:
  /// A monotonic time in nanoseconds.
  using Now = std::function<std::uint64_t()>;
  using PhaseObserver = std::function<void(HUDPresentationPhase)>;

  HUDPerformanceMetrics(Now nowNanoseconds, PhaseObserver phaseObserver,
                        HUDPresentationSignposting& signposter);

  /// Reads `clock`, which must outlive the closure.
  [[nodiscard]] static Now nanosecondsOf(const MonotonicClock& clock) {
    return [&clock] { return static_cast<std::uint64_t>(clock.now().count()); };
  }

  void beginPresentation() override;
  void mark(HUDPresentationPhase phase) override;
  /// Records the duration unless the clock went backwards, in which case the presentation
  /// counts as cancelled.
  void completePresentation() override;
  void cancelPresentation() override;

  /// When the open measurement began; none when no presentation is being measured.
  [[nodiscard]] std::optional<std::uint64_t> startedAtNanoseconds() const { return startedAt_; }
  /// Completed presentations, in milliseconds, oldest first.
  [[nodiscard]] const std::vector<double>& samples() const { return samples_; }

private:
  void emit(HUDPresentationPhase phase);

  Now nowNanoseconds_;
  PhaseObserver phaseObserver_;
  HUDPresentationSignposting& signposter_;
  std::optional<std::uint64_t> startedAt_;
  std::vector<double> samples_;
};

} // namespace quenby
