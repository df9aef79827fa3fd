// A modifier change runs inside the session's keyboard tap, for every Shift, Command or Option
// the user presses anywhere: it must allocate nothing and cost little next to a hash look-up
// (BM_HashLookupBaseline). One iteration is one flags-changed event of left Option, alternately
// down and up, a second apart, delivered through the tap's installed callback into the gesture
// recogniser. BM_TapModifierChange runs with the double-tap gesture alone, so no long-press check
// is ever scheduled; BM_TapModifierChangeWithLongPressCheck runs with both gestures, so each press
// schedules the check and each release cancels it; BM_TapOtherModifierChange is left Shift, which
// the recogniser passes over.
//
// The check is scheduled on a stand-in for the main queue that keeps the one pending task in
// place, so that what is counted is the tap's and the recogniser's own work; on a Mac, queuing
// the check is the dispatch queue's business.

#include "AllocationCounting.hpp"
#include "ScriptedBenchmarkTap.hpp"
#include "base/InMemoryKeyValueStore.hpp"
#include "data/AppPreferencesStore.hpp"

#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdint>
#include <string>

namespace quenby {
namespace {

class SingleSlotScheduler final : public MainScheduler, public MonotonicClock {
public:
  [[nodiscard]] ObservationToken post(Task) override { return {}; }
  [[nodiscard]] ObservationToken scheduleAfter(Duration, Task task) override {
    slot_ = std::move(task);
    const auto generation = ++generation_;
    return ObservationToken([this, generation] {
      if (generation == generation_) {
        slot_ = nullptr;
      }
    });
  }
  [[nodiscard]] ObservationToken scheduleRepeating(Duration, Task) override { return {}; }
  [[nodiscard]] Duration now() const override { return now_; }

  void advance(Duration delta) { now_ += delta; }

private:
  Task slot_;
  std::uint64_t generation_ = 0;
  Duration now_{};
};

constexpr std::uint16_t kLeftOption = 58;
constexpr std::uint16_t kLeftShift = 56;

void runModifierChanges(benchmark::State& state, HUDActivationGesturePreference gesture,
                        std::uint16_t keyCode = kLeftOption) {
  SingleSlotScheduler scheduler;
  InMemoryKeyValueStore defaults;
  AppPreferencesStore preferences(defaults, [](const std::string&) {});
  preferences.setHUDActivationGesture(gesture);
  InertKeyboardHUDPresenter presenter;
  InertHUDPresentationMeasurer metrics;
  ScriptedBenchmarkTap scripted(preferences, scheduler, scheduler, metrics, &presenter);
  if (!scripted.started) {
    state.SkipWithError("the scripted tap did not start");
    return;
  }
  const auto change = [&] {
    scripted.keys.held.flip(keyCode);
    scheduler.advance(std::chrono::seconds(1));
    return scripted.system.flagsChanged(keyCode);
  };
  for (int warmUp = 0; warmUp < 4; ++warmUp) {
    change();
  }
  const std::size_t before = allocationsSoFar();
  for (auto _ : state) {
    benchmark::DoNotOptimize(change());
  }
  reportAllocations(state, before);
}
void BM_TapModifierChange(benchmark::State& state) {
  runModifierChanges(state, HUDActivationGesturePreference::doubleTap);
}
BENCHMARK(BM_TapModifierChange);

void BM_TapModifierChangeWithLongPressCheck(benchmark::State& state) {
  runModifierChanges(state, HUDActivationGesturePreference::both);
}
BENCHMARK(BM_TapModifierChangeWithLongPressCheck);

// Shift and Command while typing: the flags-changed events a session is mostly made of.
void BM_TapOtherModifierChange(benchmark::State& state) {
  runModifierChanges(state, HUDActivationGesturePreference::both, kLeftShift);
}
BENCHMARK(BM_TapOtherModifierChange);

} // namespace
} // namespace quenby
