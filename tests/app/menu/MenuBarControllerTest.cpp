#include "app/AppCoordinatorFactory.hpp"
#include "shortcuts/hotkeys/RecordingHotKeyBackend.hpp"
#include "support/ScriptedKeyboardEventTapSystem.hpp"

#include <deque>
#include <gtest/gtest.h>

namespace quenby {
namespace {

struct ScriptedExplainer final : HUDEnableExplaining {
  bool confirmEnable(const HUDEnableExplanation& explanation) override {
    messages.push_back(explanation.message);
    const bool answer = answers.front();
    answers.pop_front();
    return answer;
  }
  std::deque<bool> answers;
  std::vector<std::string> messages;
};

struct CountingTerminator final : ApplicationTerminating {
  void terminate() override { ++requests; }
  int requests = 0;
};

struct CountingSettings final : SettingsWindowPresenting {
  void show() override { ++shows; }
  void close() override {}
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
    services.ui.settingsWindow = settings;
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
  const std::string& toggleTitle() {
    for (const auto& item : store().presentation().items) {
      if (item.command == MenuBarCommand::toggleHUD()) {
        return item.title;
      }
    }
    throw std::runtime_error("no toggle");
  }

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

TEST(MenuBarControllerTest, EnablingAsksFirstAndOnlyContinueTurnsTheHUDOn) {
  auto app = std::make_unique<RunningApp>();
  app->start();
  ASSERT_EQ(app->toggleTitle(), "Enable Keyboard HUD…");

  app->explainer->answers = {false, true};
  app->store().perform(MenuBarCommand::toggleHUD());
  EXPECT_EQ(app->hud(), HUDHealth::Kind::disabled);
  EXPECT_EQ(app->publications, 0) << "a cancelled alert changes nothing";

  app->store().perform(MenuBarCommand::toggleHUD());
  EXPECT_EQ(app->hud(), HUDHealth::Kind::ready);
  EXPECT_EQ(app->toggleTitle(), "Disable Keyboard HUD");
  EXPECT_EQ(app->publications, 1);

  // Turning it off needs no explanation.
  app->store().perform(MenuBarCommand::toggleHUD());
  EXPECT_EQ(app->hud(), HUDHealth::Kind::disabled);
  EXPECT_EQ(app->explainer->messages, std::vector<std::string>(2, "Enable the Keyboard HUD?"));
}

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
