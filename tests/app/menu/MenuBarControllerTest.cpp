#include "app/AppCoordinatorFactory.hpp"
#include "shortcuts/hotkeys/RecordingHotKeyBackend.hpp"
#include "support/ScriptedKeyboardEventTapSystem.hpp"

#include <deque>
#include <gtest/gtest.h>

namespace quenby {
namespace {

struct ScriptedExplainer final : HUDEnableExplaining {
  bool confirmEnable(const HUDEnableExplanation&) override {
    const bool answer = answers.front();
    answers.pop_front();
    return answer;
  }
  std::deque<bool> answers;
};

struct CountingTerminator final : ApplicationTerminating {
  void terminate() override { ++requests; }
  int requests = 0;
};

struct CountingSettings final : SettingsWindowMaking {
  struct Window final : SettingsWindowPresenting {
    explicit Window(int& shows) : shows(shows) {}
    void show() override { ++shows; }
    void close() override {}
    int& shows;
  };
  std::unique_ptr<SettingsWindowPresenting> makeSettingsWindow(SettingsWindowPages) override {
    return std::make_unique<Window>(shows);
  }
  int shows = 0;
};

/// The whole runtime over harmless adapters, with both permissions granted, a tap the system
/// lets run, hot keys the test can refuse, and the alert, Quit and Settings recorded.
struct RunningApp {
  RunningApp() {
    auto services = PlatformServices::inert();
    services.hud.permission.accessibilityTrusted = [] { return true; };
    services.hud.permission.inputMonitoringGranted = [] { return true; };
    services.hud.eventTap = tapSystem.dependencies();
    services.shortcuts.hotKeyBackend = hotKeys;
    services.app.hudEnableExplainer = explainer;
    services.app.terminator = terminator;
    services.ui.settingsWindows = settings;
    coordinator = makeAppCoordinator(std::move(services), {}, &runtime);
  }
  ~RunningApp() { coordinator->stop(); }

  void start() {
    coordinator->start();
    observation = store().observePresentation([this] { ++publications; });
  }
  MenuBarExtraStore& store() { return *coordinator->menuBarExtra(); }
  MenuBarController& menu() { return runtime.lock()->menuBar().controller(); }
  HUDHealth::Kind hud() { return runtime.lock()->hud().feature().health().kind; }

  ScriptedKeyboardEventTapSystem tapSystem;
  std::shared_ptr<RecordingHotKeyBackend> hotKeys = std::make_shared<RecordingHotKeyBackend>();
  std::shared_ptr<ScriptedExplainer> explainer = std::make_shared<ScriptedExplainer>();
  std::shared_ptr<CountingTerminator> terminator = std::make_shared<CountingTerminator>();
  std::shared_ptr<CountingSettings> settings = std::make_shared<CountingSettings>();
  std::weak_ptr<AppRuntime> runtime;
  std::unique_ptr<AppCoordinator> coordinator;
  ObservationToken observation;
  int publications = 0;
};

TEST(MenuBarControllerTest, RetriesRepairInOneStepAndQuitAndSettingsGoToThePlatform) {
  auto app = std::make_unique<RunningApp>();
  app->hotKeys->failures[{0x800, 4}] = -9878;
  app->explainer->answers = {true};
  app->start();
  app->store().perform(MenuBarCommand::toggleHUD());
  app->tapSystem.disable(KeyboardTapEventType::tapDisabledByUserInput);
  ASSERT_EQ(app->hud(), HUDHealth::Kind::tapFailure);
  ASSERT_EQ(app->menu().health().optionDigits.kind(),
            OptionDigitHotKeyHealth::Kind::registrationFailed);
  ASSERT_EQ(app->store().presentation().iconState, MenuBarIconState::attention);

  app->store().perform(MenuBarCommand::retryHUD());
  EXPECT_EQ(app->hud(), HUDHealth::Kind::ready);

  // The combination was freed meanwhile; the menu goes straight back to ready, never through
  // "not started".
  app->hotKeys->failures.clear();
  const int before = app->publications;
  app->store().perform(MenuBarCommand::retryOptionDigits());
  EXPECT_EQ(app->menu().health().optionDigits, OptionDigitHotKeyHealth::ready());
  EXPECT_EQ(app->publications, before + 1);
  EXPECT_EQ(app->store().presentation().iconState, MenuBarIconState::normal);

  app->store().perform(MenuBarCommand::showSettings());
  app->store().perform(MenuBarCommand::quit());
  EXPECT_EQ(app->settings->shows, 1);
  EXPECT_EQ(app->terminator->requests, 1);

  // Once the menu has stopped, nothing it shows can still act.
  app->menu().stop();
  app->store().perform(MenuBarCommand::quit());
  EXPECT_EQ(app->terminator->requests, 1);
}

} // namespace
} // namespace quenby
