#include "ui/settings/GeneralSettingsViewModel.hpp"

#include "app/AppCoordinatorFactory.hpp"
#include "shortcuts/hotkeys/RecordingHotKeyBackend.hpp"
#include "support/ScriptedKeyboardEventTapSystem.hpp"

#include <deque>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quenby {
namespace {

using ChoiceId = GeneralSettingsViewModel::ChoiceId;
using ToggleId = GeneralSettingsViewModel::ToggleId;
using Action = GeneralSettingsViewModel::Action;
using Status = LaunchAtLoginStatus;
using testing::Contains;
using testing::ElementsAre;

struct ScriptedExplainer final : HUDEnableExplaining {
  bool confirmEnable(const HUDEnableExplanation& explanation) override {
    shown.push_back(explanation.message);
    const bool answer = answers.front();
    answers.pop_front();
    return answer;
  }
  std::deque<bool> answers;
  std::vector<std::string> shown;
};

struct ScriptedLoginItem final : LaunchAtLoginServicing {
  [[nodiscard]] Status status() const override { return current; }
  std::optional<std::string> registerApplication() override {
    if (!refusal) {
      current = afterRegistering;
    }
    return refusal;
  }
  std::optional<std::string> unregisterApplication() override {
    current = Status::notRegistered;
    return std::nullopt;
  }
  void openLoginItemsSettings() override { ++opened; }

  Status current = Status::notRegistered;
  Status afterRegistering = Status::enabled;
  std::optional<std::string> refusal;
  int opened = 0;
};

/// The whole runtime over harmless adapters, with permissions, hot keys, the enable alert and
/// the login item under the test's control.
struct RunningApp {
  RunningApp() {
    auto services = PlatformServices::inert();
    services.hud.permission.accessibilityTrusted = [this] { return granted; };
    services.hud.permission.inputMonitoringGranted = [this] { return granted; };
    services.hud.permission.openSettingsURL = [this](const std::string& url) {
      openedURLs.push_back(url);
    };
    services.hud.eventTap = tapSystem.dependencies();
    services.shortcuts.hotKeyBackend = hotKeys;
    services.app.hudEnableExplainer = explainer;
    services.ui.launchAtLogin = loginItem;
    coordinator = makeAppCoordinator(std::move(services), {}, &runtime);
    coordinator->start();
  }
  ~RunningApp() { coordinator->stop(); }

  GeneralSettingsViewModel& page() { return runtime.lock()->ui().generalSettings(); }
  const GeneralSettingsContent& content() { return page().content(); }
  AppPreferencesProviding& preferences() { return runtime.lock()->data().preferences(); }

  bool granted = false;
  std::vector<std::string> openedURLs;
  ScriptedKeyboardEventTapSystem tapSystem;
  std::shared_ptr<RecordingHotKeyBackend> hotKeys = std::make_shared<RecordingHotKeyBackend>();
  std::shared_ptr<ScriptedExplainer> explainer = std::make_shared<ScriptedExplainer>();
  std::shared_ptr<ScriptedLoginItem> loginItem = std::make_shared<ScriptedLoginItem>();
  std::weak_ptr<AppRuntime> runtime;
  std::unique_ptr<AppCoordinator> coordinator;
};

template <typename Enum> std::size_t index(Enum value) { return static_cast<std::size_t>(value); }

TEST(GeneralSettingsViewModelTest, EachMenuShowsItsPreferenceAndWritesTheChosenCase) {
  struct Row {
    ChoiceId id;
    std::size_t optionCount;
    std::size_t initial;
    std::size_t pick;
    std::size_t (*stored)(const AppPreferencesProviding&);
  };
  const Row rows[] = {
      {ChoiceId::activationModifier, 2, 0, 1,
       [](const AppPreferencesProviding& p) { return index(p.activationModifier()); }},
      {ChoiceId::hudActivationGesture, 3, 2, 0,
       [](const AppPreferencesProviding& p) { return index(p.hudActivationGesture()); }},
      {ChoiceId::hudSize, 3, 1, 2,
       [](const AppPreferencesProviding& p) { return index(p.hudSize()); }},
      {ChoiceId::hudTheme, 3, 2, 1,
       [](const AppPreferencesProviding& p) { return index(p.hudTheme()); }},
      {ChoiceId::hudOpacity, 5, 4, 0,
       [](const AppPreferencesProviding& p) { return index(p.hudOpacity()); }},
      {ChoiceId::windowPlacement, 2, 0, 1,
       [](const AppPreferencesProviding& p) { return index(p.windowPlacement()); }},
      {ChoiceId::shortcutAnimationDisplay, 2, 0, 1,
       [](const AppPreferencesProviding& p) { return index(p.shortcutAnimationDisplay()); }},
  };
  RunningApp app;
  int changes = 0;
  const auto observation = app.page().observe([&] { ++changes; });
  for (const Row& row : rows) {
    SCOPED_TRACE(app.content().choice(row.id).title);
    EXPECT_EQ(app.content().choice(row.id).id, row.id);
    EXPECT_EQ(app.content().choice(row.id).options.size(), row.optionCount);
    EXPECT_EQ(app.content().choice(row.id).selectedIndex, row.initial);
    app.page().select(row.id, row.pick);
    EXPECT_EQ(row.stored(app.preferences()), row.pick);
    EXPECT_EQ(app.content().choice(row.id).selectedIndex, row.pick);
    app.page().select(row.id, row.optionCount);
    EXPECT_EQ(row.stored(app.preferences()), row.pick);
  }
  EXPECT_EQ(changes, 7);
  EXPECT_THAT(app.content().choice(ChoiceId::activationModifier).options,
              ElementsAre("Option (⌥)", "Control (⌃)"));
  EXPECT_THAT(app.content().choice(ChoiceId::hudOpacity).options,
              ElementsAre("60%", "70%", "80%", "90%", "100%"));

  const auto& hide = app.content().toggle(ToggleId::shortcutHidesFrontmostApplication);
  EXPECT_EQ(hide.footnote,
            "Full-screen Apps cannot be hidden, so the shortcut does nothing there.");
  app.page().setToggle(ToggleId::shortcutHidesFrontmostApplication, true);
  EXPECT_TRUE(app.preferences().shortcutHidesFrontmostApplication());
  app.page().setToggle(ToggleId::shortcutAnimationEnabled, false);
  EXPECT_FALSE(app.preferences().shortcutAnimationEnabled());
  EXPECT_FALSE(app.content().choice(ChoiceId::shortcutAnimationDisplay).isEnabled);
}

TEST(GeneralSettingsViewModelTest, TheHUDSwitchAsksFirstAndTheStatusSaysWhatIsMissing) {
  RunningApp app;
  app.explainer->answers = {false, true};
  app.page().setToggle(ToggleId::hudEnabled, true);
  EXPECT_FALSE(app.content().toggle(ToggleId::hudEnabled).isOn) << "cancelled";
  app.page().setToggle(ToggleId::hudEnabled, true);
  EXPECT_EQ(app.explainer->shown, std::vector<std::string>(2, "Enable the Keyboard HUD?"));
  EXPECT_TRUE(app.content().toggle(ToggleId::hudEnabled).isOn);

  const auto& hud = app.content().hud;
  EXPECT_THAT(hud.lines, ElementsAre("Keyboard HUD: Permission Required",
                                     "Missing: Accessibility, Input Monitoring"));
  ASSERT_EQ(hud.buttons.size(), 2U);
  EXPECT_TRUE(hud.needsAttention);
  app.page().perform(hud.buttons[1].action);
  EXPECT_EQ(app.openedURLs, std::vector{SystemEventTapPermission::settingsURL(
                                EventTapPermissionKind::inputMonitoring)});

  // Granted in System Settings while the window was closed: showing it again reads it.
  app.granted = true;
  app.page().windowDidShow();
  EXPECT_THAT(app.content().hud.lines, ElementsAre("Keyboard HUD: Ready"));
  EXPECT_FALSE(app.content().hud.needsAttention);
}

TEST(GeneralSettingsViewModelTest, TheDigitStatusGathersEveryKnownCause) {
  RunningApp app;
  app.hotKeys->failures[{0x1000, 4}] = -9878;
  app.page().select(ChoiceId::activationModifier, 1);
  const auto& digits = app.content().digitShortcuts;
  EXPECT_THAT(digits.lines, ElementsAre("Digit Shortcuts: Registration Failed",
                                        "Shortcut issue: Unable to register Control-4: OSStatus "
                                        "-9878.",
                                        "Quit or reconfigure apps using Control-1 through "
                                        "Control-9, then retry.",
                                        "Dock positions 1, 2, 3, 4, 5, 6, 7, 8, 9 do not contain a "
                                        "pinned application."));
  ASSERT_EQ(digits.buttons.size(), 1U);
  EXPECT_EQ(digits.buttons[0].title, "Retry Control-Digit Shortcuts");

  app.hotKeys->failures.clear();
  app.page().perform(Action::retryDigitShortcuts);
  {
    auto& diagnostics = app.runtime.lock()->shell().shortcutDiagnostics();
    diagnostics.setAutomaticWarning("Control-1 is taken by another app.");
  }
  EXPECT_THAT(app.content().digitShortcuts.lines,
              ElementsAre("Digit Shortcuts: Ready", "Control-1 is taken by another app.",
                          testing::StartsWith("Dock positions")));
  EXPECT_TRUE(app.content().digitShortcuts.needsAttention);
}

TEST(GeneralSettingsViewModelTest, LaunchAtLoginShowsApprovalAndFailuresAndIsReadAgainOnShow) {
  RunningApp app;
  app.loginItem->afterRegistering = Status::requiresApproval;
  app.page().setToggle(ToggleId::launchAtLogin, true);
  EXPECT_TRUE(app.content().toggle(ToggleId::launchAtLogin).isOn);
  const auto& login = app.content().launchAtLogin;
  EXPECT_THAT(login.lines,
              ElementsAre("Requires approval: allow Quenby in System Settings > General > Login "
                          "Items."));
  ASSERT_EQ(login.buttons.size(), 1U);
  app.page().perform(login.buttons[0].action);
  EXPECT_EQ(app.loginItem->opened, 1);

  app.loginItem->current = Status::enabled;
  app.page().windowDidShow();
  EXPECT_THAT(app.content().launchAtLogin.lines, ElementsAre("Quenby opens when you log in."));

  app.page().setToggle(ToggleId::launchAtLogin, false);
  app.loginItem->refusal = "Operation not permitted";
  app.page().setToggle(ToggleId::launchAtLogin, true);
  EXPECT_FALSE(app.content().toggle(ToggleId::launchAtLogin).isOn);
  EXPECT_THAT(app.content().launchAtLogin.lines,
              ElementsAre("The login item could not be changed: Operation not permitted"));
}

} // namespace
} // namespace quenby
