// A digit press must decide what to do (look the position up, check the mapping, decide between
// hiding and switching) without allocating and at the cost of a few map look-ups.
// BM_HashLookupBaseline is one hash-map find, the yardstick the press (and the HUD tap's modifier
// change) is measured against; `allocations` counts the heap allocations per iteration.

#include "AllocationCounting.hpp"
#include "app/ConfigurationFailureReporting.hpp"
#include "base/InMemoryKeyValueStore.hpp"
#include "data/AppPreferencesStore.hpp"
#include "shortcuts/hotkeys/OptionDigitHotKeyRegistrar.hpp"

#include <benchmark/benchmark.h>
#include <string>
#include <unordered_map>

namespace quenby {
namespace {

AppMapping mappingAt(int position) {
  const std::string name = "Application Number " + std::to_string(position);
  const auto url = FileURL::fromPath("/Applications/" + name + ".app");
  return {.displayName = name,
          .bundleIdentifier = "com.example.application-number-" + std::to_string(position),
          .lastKnownURL = url,
          .resolution = ApplicationResolution::resolved(url),
          .source = MappingSource::dock(position)};
}

void BM_HotKeyPressDecision(benchmark::State& state) {
  KeyboardMappingSnapshot snapshot;
  for (int position = 1; position <= 9; ++position) {
    snapshot.numberEntries.set(position, NumberMappingEntry::mapped(mappingAt(position)));
  }
  InertOptionDigitHotKeyBackend backend;
  InertAppSwitchCommandSubmitter submitter;
  InertAppSwitchFailureHandler failureHandler;
  InertConfigurationFailureReporter reporter;
  InMemoryKeyValueStore defaults;
  AppPreferencesStore preferences(defaults, [](const std::string&) {});
  InertFrontmostApplicationProvider frontmost;
  InertAppHider hider;
  NoOpShortcutAnimationPresenter animation;
  EnglishLocalizer localizer;
  OptionDigitHotKeyRegistrar registrar(
      {.backend = backend,
       .mappings = [&]() -> const KeyboardMappingSnapshot& { return snapshot; },
       .switchCommands = submitter,
       .failureHandler = failureHandler,
       .configurationReporter = reporter,
       .preferences = preferences,
       .frontmostApplications = frontmost,
       .appHider = hider,
       .animation = animation,
       .localizer = localizer});
  int digit = 0;
  for (int warmUp = 1; warmUp <= 9; ++warmUp) {
    registrar.handleHotKey(warmUp);
  }
  const std::size_t before = allocationsSoFar();
  for (auto _ : state) {
    digit = digit % 9 + 1;
    registrar.handleHotKey(digit);
  }
  reportAllocations(state, before);
}
BENCHMARK(BM_HotKeyPressDecision);

void BM_HashLookupBaseline(benchmark::State& state) {
  std::unordered_map<int, AppMapping> mappings;
  for (int position = 1; position <= 9; ++position) {
    mappings.emplace(position, mappingAt(position));
  }
  int digit = 0;
  const std::size_t before = allocationsSoFar();
  for (auto _ : state) {
    digit = digit % 9 + 1;
    auto found = mappings.find(digit);
    benchmark::DoNotOptimize(found);
  }
  reportAllocations(state, before);
}
BENCHMARK(BM_HashLookupBaseline);

} // namespace
} // namespace quenby
