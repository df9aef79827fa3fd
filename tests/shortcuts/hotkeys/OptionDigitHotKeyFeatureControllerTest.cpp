#include "shortcuts/hotkeys/OptionDigitHotKeyFeatureController.hpp"

#include "base/InMemoryKeyValueStore.hpp"
#include "data/AppPreferencesStore.hpp"
#include "shortcuts/hotkeys/RecordingHotKeyBackend.hpp"

#include <gtest/gtest.h>

namespace quenby {
namespace {

using Health = OptionDigitHotKeyHealth;
using Modifier = ActivationModifierPreference;

struct ScriptedSymbolicHotKeys final : SystemSymbolicHotKeyReading {
  std::optional<PropertyListValue> copySymbolicHotKeys() override {
    ++reads;
    return table;
  }
  std::optional<PropertyListValue> table;
  int reads = 0;
};

PropertyListValue shortcut(bool enabled, std::int64_t keyCode, std::int64_t flags) {
  return PropertyListValue::Dictionary{
      {"enabled", enabled},
      {"value",
       PropertyListValue::Dictionary{
           {"parameters", PropertyListValue::Array{65535, keyCode, flags}}, {"type", "standard"}}}};
}

struct Fixture {
  RecordingHotKeyBackend backend;
  KeyboardMappingSnapshot snapshot;
  InertAppSwitchCommandSubmitter submitter;
  InertAppSwitchFailureHandler failureHandler;
  struct : ConfigurationFailureReporting {
    void report(const ConfigurationFailure&) override {}
  } reporter;
  InMemoryKeyValueStore defaults;
  AppPreferencesStore preferences{defaults, [](const std::string&) {}};
  InertFrontmostApplicationProvider frontmost;
  InertAppHider hider;
  NoOpShortcutAnimationPresenter animation;
  EnglishLocalizer localizer;
  ScriptedSymbolicHotKeys symbolicHotKeys;
  OptionDigitHotKeyRegistrar registrar{OptionDigitHotKeyRegistrar::Collaborators{
      .backend = backend,
      .mappings = [this]() -> const KeyboardMappingSnapshot& { return snapshot; },
      .switchCommands = submitter,
      .failureHandler = failureHandler,
      .configurationReporter = reporter,
      .preferences = preferences,
      .frontmostApplications = frontmost,
      .appHider = hider,
      .animation = animation,
      .localizer = localizer}};
  OptionDigitHotKeyFeatureController controller{registrar, preferences, symbolicHotKeys};
  std::vector<Health> published;
};

TEST(OptionDigitHotKeyFeatureControllerTest, HealthFollowsRegistrationAndTheModifier) {
  auto f = std::make_unique<Fixture>();
  f->controller.setOnHealthChanged([&](const Health& health) { f->published.push_back(health); });
  EXPECT_EQ(f->controller.health(), Health::notStarted());

  f->controller.start();
  f->controller.start();
  EXPECT_EQ(f->published, std::vector<Health>{Health::ready()});
  EXPECT_EQ(std::count(f->backend.log.begin(), f->backend.log.end(), "install"), 1);
  EXPECT_EQ(f->registrar.activeModifier(), Modifier::option);

  // Control-3 is taken: the failure is the health, and no digit stays registered.
  f->backend.failures[{0x1000, 3}] = -9878;
  f->preferences.setActivationModifier(Modifier::control);
  const auto failed = Health::registrationFailed(
      OptionDigitHotKeyError::registerHotKey(Modifier::control, 3, -9878));
  EXPECT_EQ(f->controller.health(), failed);
  EXPECT_EQ(f->registrar.registeredHotKeyCount(), 0U);
  EXPECT_FALSE(f->registrar.isHandlerInstalled());

  // Changing back recovers from the failed state; another preference changes nothing.
  f->preferences.setActivationModifier(Modifier::option);
  f->backend.log.clear();
  f->preferences.setShortcutHidesFrontmostApplication(true);
  EXPECT_TRUE(f->backend.log.empty());
  EXPECT_EQ(f->published, (std::vector<Health>{Health::ready(), failed, Health::ready()}));

  f->controller.stop();
  f->controller.stop();
  EXPECT_EQ(f->registrar.registeredHotKeyCount(), 0U);
  EXPECT_EQ(f->published.back(), Health::notStarted());
  EXPECT_EQ(f->published.size(), 4U);

  // Stopped, the preference is no longer followed.
  f->backend.log.clear();
  f->preferences.setActivationModifier(Modifier::control);
  EXPECT_TRUE(f->backend.log.empty());
  EXPECT_EQ(f->controller.health(), Health::notStarted());
}

TEST(OptionDigitHotKeyFeatureControllerTest, NotesDigitsThatASystemShortcutTakes) {
  auto f = std::make_unique<Fixture>();
  f->symbolicHotKeys.table = PropertyListValue::Dictionary{{"118", shortcut(true, 18, 262144)},
                                                           {"119", shortcut(true, 19, 262144)}};
  f->controller.start();
  // The system's shortcuts use Control; with Option nothing is taken.
  EXPECT_TRUE(f->controller.systemShortcutConflicts().empty());
  EXPECT_EQ(f->controller.health(), Health::ready());

  f->preferences.setActivationModifier(Modifier::control);
  ASSERT_EQ(f->controller.systemShortcutConflicts().size(), 2U);
  EXPECT_EQ(f->controller.systemShortcutConflicts()[0].message(Modifier::control, f->localizer),
            "Control-1 is used by Switch to Desktop 1 in System Settings > Keyboard > Keyboard "
            "Shortcuts");
  // The system wins silently, so the hot keys are registered all the same.
  EXPECT_EQ(f->controller.health(), Health::ready());
  EXPECT_EQ(f->registrar.registeredHotKeyCount(), 9U);

  f->controller.stop();
  EXPECT_TRUE(f->controller.systemShortcutConflicts().empty());
}

} // namespace
} // namespace quenby
