#pragma once

#include "base/InMemoryKeyValueStore.hpp"
#include "base/ManualScheduler.hpp"
#include "data/AppPreferencesStore.hpp"
#include "hud/tap/GlobalKeyboardEventTap.hpp"
#include "support/ScriptedKeyboardEventTapSystem.hpp"
#include "support/ScriptedModifierKeyState.hpp"

#include <bitset>
#include <string>
#include <vector>

namespace quenby {

struct TapHUDPresenter final : KeyboardHUDPresenting {
  [[nodiscard]] bool isVisible() const override { return visible; }
  void show() override {
    visible = true;
    ++shows;
  }
  void hide() override {
    visible = false;
    ++hides;
  }
  // As the panel controller does: every action closes the HUD first.
  void perform(const HUDKeyboardAction& action) override {
    visible = false;
    performed.push_back(action);
  }
  bool visible = false;
  int shows = 0;
  int hides = 0;
  std::vector<HUDKeyboardAction> performed;
};

struct TapPresentationCounter final : HUDPresentationMeasuring {
  void beginPresentation() override { ++begun; }
  void mark(HUDPresentationPhase) override {}
  void completePresentation() override {}
  void cancelPresentation() override {}
  int begun = 0;
};

/// Consumes the key codes it is told to, and Command-comma's key as the settings shortcut while
/// the HUD is visible; or asks `delegate`, when there is one.
struct TapKeyDownRouter final : KeyDownRouting {
  static constexpr std::uint16_t kSettingsKey = 43;
  [[nodiscard]] HUDKeyboardEventDecision route(const KeyDownRoutingRequest& request) override {
    ++calls;
    last = request;
    if (delegate != nullptr) {
      return delegate->route(request);
    }
    if (request.keyCode == kSettingsKey && request.hudIsVisible) {
      return HUDKeyboardEventDecision::consume(HUDKeyboardAction::openSettings());
    }
    return request.keyCode < consumed.size() && consumed.test(request.keyCode)
               ? HUDKeyboardEventDecision::consume(HUDKeyboardAction::none())
               : HUDKeyboardEventDecision{};
  }
  std::bitset<128> consumed;
  KeyDownRouting* delegate = nullptr;
  int calls = 0;
  KeyDownRoutingRequest last;
};

struct TapLogRecorder final : Logger {
  void log(LogLevel level, std::string_view category, std::string_view message) override {
    lines.push_back((level == LogLevel::error ? "error " : "other ") + std::string(category) +
                    ": " + std::string(message));
  }
  std::vector<std::string> lines;
};

/// A tap on the scripted system, with the panel attached and failures recorded.
struct TapHarness {
  static constexpr std::uint16_t kLeftOption = 58;
  static constexpr std::uint16_t kRightOption = 61;
  static constexpr std::uint16_t kLeftControl = 59;

  TapHarness() {
    tap.attach(&presenter);
    tap.setOnFailure(
        [this](GlobalKeyboardEventTapFailure failure) { failures.push_back(failure); });
  }

  void press(std::uint16_t keyCode) {
    keys.held.set(keyCode);
    system.flagsChanged(keyCode);
  }
  void release(std::uint16_t keyCode) {
    keys.held.reset(keyCode);
    system.flagsChanged(keyCode);
  }

  ManualScheduler scheduler;
  ScriptedModifierKeyState keys;
  InMemoryKeyValueStore defaults;
  AppPreferencesStore preferences{defaults, [](const std::string&) {}};
  ScriptedKeyboardEventTapSystem system;
  TapHUDPresenter presenter;
  TapPresentationCounter metrics;
  TapKeyDownRouter router;
  TapLogRecorder logger;
  std::vector<GlobalKeyboardEventTapFailure> failures;
  GlobalKeyboardEventTap tap{{.dependencies = system.dependencies(),
                              .preferences = preferences,
                              .keyStateReader = keys,
                              .scheduler = scheduler,
                              .clock = scheduler,
                              .metrics = metrics,
                              .router = router,
                              .logger = logger}};
};

} // namespace quenby
