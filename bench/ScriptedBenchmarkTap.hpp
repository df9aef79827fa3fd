#pragma once

#include "hud/routing/HUDKeyDownRouter.hpp"
#include "hud/tap/GlobalKeyboardEventTap.hpp"
#include "support/ScriptedKeyboardEventTapSystem.hpp"
#include "support/ScriptedModifierKeyState.hpp"

namespace quenby {

/// A started keyboard tap on the scripted system, with the real key routing over `mappings` (no
/// mapping at all when null), nothing in front, keys typing nothing (the US letter positions),
/// and the keys the benchmark holds. `presenter` may be null; everything given must outlive it.
struct ScriptedBenchmarkTap {
  ScriptedBenchmarkTap(AppPreferencesProviding& preferences, MainScheduler& scheduler,
                       const MonotonicClock& clock, HUDPresentationMeasuring& metrics,
                       KeyboardHUDPresenting* presenter,
                       KeyboardMappingSnapshotProviding* mappings = nullptr)
      : router({.mappings = mappings != nullptr ? *mappings : noMappings,
                .preferences = preferences,
                .frontmostApplication = frontmost,
                .characterTranslator = characters}),
        tap({.dependencies = system.dependencies(),
             .preferences = preferences,
             .keyStateReader = keys,
             .scheduler = scheduler,
             .clock = clock,
             .metrics = metrics,
             .router = router,
             .logger = logger}) {
    tap.attach(presenter);
    started = !tap.start();
  }
  ~ScriptedBenchmarkTap() { tap.attach(nullptr); }
  ScriptedBenchmarkTap(const ScriptedBenchmarkTap&) = delete;
  ScriptedBenchmarkTap& operator=(const ScriptedBenchmarkTap&) = delete;

  ScriptedKeyboardEventTapSystem system;
  ScriptedModifierKeyState keys;
  InertKeyboardMappingSnapshotProvider noMappings;
  InertFrontmostApplicationProvider frontmost;
  InertKeyboardCharacterTranslator characters;
  HUDKeyDownRouter router;
  NullLogger logger;
  GlobalKeyboardEventTap tap;
  bool started = false;
};

} // namespace quenby
