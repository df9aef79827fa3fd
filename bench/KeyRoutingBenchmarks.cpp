// Every key-down of the session passes through the keyboard tap's routing. An ordinary key with
// the HUD hidden must allocate nothing and cost little next to a hash look-up
// (BM_HashLookupBaseline, HotKeyBenchmarks.cpp): BM_KeyDownForwarded is one key-down of S with no
// modifier through the tap's installed callback and the real router, with letters assigned.
// BM_KeyDownLetterConsumed is Option-S, assigned, up to the switch's submission (the action runs
// on the next turn of the main queue, which the benchmark runs in place), followed by the key-up
// that clears the swallowed key (timed too: pausing the timer would cost more than it does). The
// panel controller is stood in for by its action path alone: post, then submit.

#include "AllocationCounting.hpp"
#include "ScriptedBenchmarkTap.hpp"
#include "base/InMemoryKeyValueStore.hpp"
#include "base/ManualScheduler.hpp"
#include "data/AppPreferencesStore.hpp"
#include "shortcuts/switching/AppSwitchCommandSubmitting.hpp"

#include <benchmark/benchmark.h>
#include <string>

namespace quenby {
namespace {

constexpr std::uint16_t kS = 1;
constexpr std::uint64_t kOption = 0x80000;

struct AssignedLetters final : KeyboardMappingSnapshotProviding {
  AssignedLetters() {
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
      const auto url = FileURL::fromPath(std::string("/Applications/Letter ") + letter + ".app");
      current.letterMappings.emplace(
          letter, AppMapping{.displayName = std::string("Letter ") + letter,
                             .bundleIdentifier = std::string("com.example.letter-") + letter,
                             .lastKnownURL = url,
                             .resolution = ApplicationResolution::resolved(url),
                             .source = MappingSource::letter(letter)});
    }
  }
  [[nodiscard]] const KeyboardMappingSnapshot& snapshot() const override { return current; }
  [[nodiscard]] ObservationToken observe(SnapshotHandler) override { return {}; }
  KeyboardMappingSnapshot current;
};

// The panel controller's side, as far as a hidden letter shortcut reaches it: the action runs
// after the event, here on the manual main queue, and ends in a submission.
struct SubmittingPresenter final : KeyboardHUDPresenting {
  explicit SubmittingPresenter(MainScheduler& scheduler) : scheduler(scheduler) {}
  [[nodiscard]] bool isVisible() const override { return false; }
  void show() override {}
  void hide() override {}
  void perform(const HUDKeyboardAction& action) override {
    pending = scheduler.post([this, action] {
      if (const auto* execute = action.as<HUDKeyboardAction::Execute>()) {
        submitter.submit(execute->mapping);
      }
    });
  }
  MainScheduler& scheduler;
  InertAppSwitchCommandSubmitter submitter;
  ObservationToken pending;
};

struct RoutingBench {
  ManualScheduler scheduler;
  InMemoryKeyValueStore defaults;
  AppPreferencesStore preferences{defaults, [](const std::string&) {}};
  InertHUDPresentationMeasurer metrics;
  AssignedLetters letters;
  SubmittingPresenter presenter{scheduler};
  ScriptedBenchmarkTap scripted{preferences, scheduler, scheduler, metrics, &presenter, &letters};
};

void BM_KeyDownForwarded(benchmark::State& state) {
  RoutingBench bench;
  if (!bench.scripted.started) {
    state.SkipWithError("the scripted tap did not start");
    return;
  }
  const std::size_t before = allocationsSoFar();
  for (auto _ : state) {
    benchmark::DoNotOptimize(bench.scripted.system.keyDown(kS, 0, false));
  }
  reportAllocations(state, before);
}
BENCHMARK(BM_KeyDownForwarded);

void BM_KeyDownLetterConsumed(benchmark::State& state) {
  RoutingBench bench;
  if (!bench.scripted.started) {
    state.SkipWithError("the scripted tap did not start");
    return;
  }
  const std::size_t before = allocationsSoFar();
  for (auto _ : state) {
    benchmark::DoNotOptimize(bench.scripted.system.keyDown(kS, kOption, false));
    bench.scheduler.runPending();
    benchmark::DoNotOptimize(bench.scripted.system.keyUp(kS));
  }
  reportAllocations(state, before);
}
BENCHMARK(BM_KeyDownLetterConsumed);

} // namespace
} // namespace quenby
