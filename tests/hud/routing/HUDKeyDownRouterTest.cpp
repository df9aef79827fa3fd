#include "hud/routing/HUDKeyDownRouter.hpp"

#include "base/InMemoryKeyValueStore.hpp"
#include "base/ObserverList.hpp"
#include "data/AppPreferencesStore.hpp"

#include <gtest/gtest.h>

namespace quenby {
namespace {

constexpr std::uint64_t kOption = 0x80000;
constexpr std::uint64_t kShift = 0x20000;
constexpr std::uint64_t kCommand = 0x100000;
constexpr std::uint64_t kCapsLock = 0x10000;
constexpr std::uint16_t kA = 0, kB = 11, kC = 8, kComma = 43, kEscape = 53;
constexpr std::uint16_t kDigit1 = 18, kDigit2 = 19, kDigit3 = 20;

AppMapping mapping(MappingSource source, const std::string& bundle, bool found = true) {
  const auto url = FileURL::fromPath("/Applications/" + bundle + ".app");
  return {.displayName = bundle,
          .bundleIdentifier = bundle,
          .lastKnownURL = url,
          .resolution =
              found ? ApplicationResolution::resolved(url) : ApplicationResolution::notFound(),
          .source = source};
}

struct Mappings final : KeyboardMappingSnapshotProviding {
  [[nodiscard]] const KeyboardMappingSnapshot& snapshot() const override { return current; }
  [[nodiscard]] ObservationToken observe(SnapshotHandler handler) override {
    return changed.add([this, handler] { handler(current); });
  }
  KeyboardMappingSnapshot current;
  ObserverList<> changed;
};

struct CountingFrontmost final : FrontmostApplicationProviding {
  [[nodiscard]] std::optional<std::string> frontmostBundleIdentifier() const override {
    ++asked;
    return front;
  }
  std::optional<std::string> front;
  mutable int asked = 0;
};

struct Fixture {
  Fixture() {
    mappings.current.letterMappings.emplace('A', mapping(MappingSource::letter('A'), "Notes"));
    mappings.current.letterMappings.emplace('C',
                                            mapping(MappingSource::letter('C'), "Gone", false));
    mappings.current.numberEntries.set(
        1, NumberMappingEntry::mapped(mapping(MappingSource::dock(1), "Mail")));
    mappings.current.numberEntries.set(
        2, NumberMappingEntry::mapped(mapping(MappingSource::dock(2), "Lost", false)));
    mappings.changed.notify();
  }

  // The tap asks about a hidden-HUD key only when the activation modifier alone is held.
  HUDKeyboardEventDecision hidden(std::uint16_t keyCode, std::uint64_t flags) {
    return router.route({.keyCode = keyCode, .flags = flags, .hudIsVisible = false});
  }
  HUDKeyboardEventDecision visible(std::uint16_t keyCode, std::uint64_t flags = 0) {
    return router.route({.keyCode = keyCode, .flags = flags, .hudIsVisible = true});
  }
  const AppMapping& letter(char l) { return mappings.current.letterMappings.at(l); }

  InMemoryKeyValueStore defaults;
  AppPreferencesStore preferences{defaults, [](const std::string&) {}};
  Mappings mappings;
  CountingFrontmost frontmost;
  InertKeyboardCharacterTranslator characters;
  ShortcutTestMonitor testMonitor;
  HUDKeyDownRouter router{{.mappings = mappings,
                           .preferences = preferences,
                           .frontmostApplication = frontmost,
                           .characterTranslator = characters,
                           .testMonitor = &testMonitor}};
};

const HUDKeyboardEventDecision kDefault{};

TEST(HUDKeyDownRouterTest, HiddenOnlyAResolvedLetterIsTaken) {
  Fixture f;
  const auto executeA = HUDKeyboardEventDecision::consume(
      HUDKeyboardAction::execute(f.letter('A'), HUDKey::letter('A')));
  EXPECT_EQ(f.hidden(kA, kOption), executeA);
  // Unassigned, unresolved, a digit (the system hot key's) and Escape type as usual.
  EXPECT_EQ(f.hidden(kB, kOption), kDefault);
  EXPECT_EQ(f.hidden(kC, kOption), kDefault);
  EXPECT_EQ(f.hidden(kDigit1, kOption), kDefault);
  EXPECT_EQ(f.hidden(kEscape, kOption), kDefault);
  EXPECT_EQ(f.frontmost.asked, 0);
}

TEST(HUDKeyDownRouterTest, HiddenTheHidePreferenceHidesTheApplicationInFront) {
  Fixture f;
  f.frontmost.front = "Notes";
  EXPECT_EQ(f.hidden(kA, kOption).action,
            HUDKeyboardAction::execute(f.letter('A'), HUDKey::letter('A')));
  EXPECT_EQ(f.frontmost.asked, 0);
  f.preferences.setShortcutHidesFrontmostApplication(true);
  EXPECT_EQ(f.hidden(kA, kOption),
            HUDKeyboardEventDecision::consume(HUDKeyboardAction::hideApplication(f.letter('A'))));
  f.frontmost.front = "Safari";
  EXPECT_EQ(f.hidden(kA, kOption).action.is<HUDKeyboardAction::Execute>(), true);
  // Passed-on keys never ask who is in front.
  const int asked = f.frontmost.asked;
  EXPECT_EQ(f.hidden(kB, kOption), kDefault);
  EXPECT_EQ(f.frontmost.asked, asked);
}

TEST(HUDKeyDownRouterTest, HiddenUnderTestALetterIsDescribedAndOnlyAnActingOneSwallowed) {
  using Outcome = ShortcutTestMonitor::Observation::Outcome;
  Fixture f;
  std::vector<ShortcutTestMonitor::Observation> seen;
  const auto arm = [&] {
    return f.testMonitor.arm([&](const auto& observation) { seen.push_back(observation); });
  };
  f.preferences.setActivationModifier(ActivationModifierPreference::control);
  const auto swallowed = HUDKeyboardEventDecision::consume(HUDKeyboardAction::none());

  auto arming = arm();
  EXPECT_EQ(f.hidden(kA, kOption), swallowed) << "an assigned letter must not switch";
  EXPECT_EQ(f.hidden(kA, kOption).action.is<HUDKeyboardAction::Execute>(), true)
      << "one press per test";
  arming = arm();
  EXPECT_EQ(f.hidden(kB, kOption), kDefault);
  arming = arm();
  EXPECT_EQ(f.hidden(kC, kOption), kDefault);
  f.preferences.setShortcutHidesFrontmostApplication(true);
  f.frontmost.front = "Notes";
  arming = arm();
  EXPECT_EQ(f.hidden(kA, kOption), swallowed);

  ASSERT_EQ(seen.size(), 4U);
  EXPECT_EQ(seen[0],
            (ShortcutTestMonitor::Observation{.modifier = ActivationModifierPreference::control,
                                              .key = 'A',
                                              .outcome = Outcome::switchToApplication,
                                              .applicationName = "Notes"}));
  EXPECT_EQ(seen[1].outcome, Outcome::unassigned);
  EXPECT_TRUE(seen[1].keyTypesAsUsual);
  EXPECT_EQ(seen[2].outcome, Outcome::cannotSwitch);
  EXPECT_TRUE(seen[2].keyTypesAsUsual);
  EXPECT_EQ(seen[2].failure->kind(), AppSwitchConfigurationFailure::Kind::unresolved);
  EXPECT_EQ(seen[3].outcome, Outcome::hideApplication);

  // The HUD's own keys are not shortcuts, and a dropped arming hears nothing.
  arming = arm();
  EXPECT_EQ(f.visible(kEscape).action, HUDKeyboardAction::dismiss());
  arming.cancel();
  EXPECT_FALSE(f.testMonitor.isArmed());
  EXPECT_EQ(seen.size(), 4U);
}

TEST(HUDKeyDownRouterTest, VisibleTheHUDOwnsItsKeysWhateverTheModifiers) {
  Fixture f;
  EXPECT_EQ(f.visible(kEscape), HUDKeyboardEventDecision::consume(HUDKeyboardAction::dismiss()));
  EXPECT_EQ(f.visible(kComma, kCommand | kCapsLock),
            HUDKeyboardEventDecision::consume(HUDKeyboardAction::openSettings()));
  EXPECT_EQ(f.visible(kComma, kCommand | kShift), kDefault);
  EXPECT_EQ(f.visible(kComma), kDefault);
  EXPECT_EQ(f.visible(kA, kShift), HUDKeyboardEventDecision::consume(HUDKeyboardAction::execute(
                                       f.letter('A'), HUDKey::letter('A'))));
  EXPECT_EQ(f.visible(kB), kDefault);
  EXPECT_EQ(f.visible(kC), HUDKeyboardEventDecision::consume(HUDKeyboardAction::openLetterEditor(
                               'C', ApplicationResolutionProblem::notFound())));

  EXPECT_EQ(f.visible(kDigit1).action,
            HUDKeyboardAction::execute(*f.mappings.current.numberEntries.at(1).mapping(),
                                       HUDKey::number(1)));
  EXPECT_EQ(
      f.visible(kDigit2),
      HUDKeyboardEventDecision::consume(HUDKeyboardAction::openNumericInfo(
          2, HUDNumericMappingProblem::unresolved(ApplicationResolutionProblem::notFound()))));
  EXPECT_EQ(
      f.visible(kDigit3),
      HUDKeyboardEventDecision::consume(HUDKeyboardAction::openNumericInfo(
          3, HUDNumericMappingProblem::unavailable(NumberMappingProblem::emptyDockPosition()))));
}

TEST(HUDKeyDownRouterTest, FollowsEachNewSnapshotAndOnlyThat) {
  Fixture f;
  f.mappings.current.letterMappings.erase('A');
  EXPECT_EQ(f.hidden(kA, kOption).disposition, EventTapDisposition::consume);
  f.mappings.changed.notify();
  EXPECT_EQ(f.hidden(kA, kOption), kDefault);
}

} // namespace
} // namespace quenby
