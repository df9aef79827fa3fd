#include "ui/settings/ShortcutTestSession.hpp"

#include "base/InMemoryKeyValueStore.hpp"
#include "base/ManualScheduler.hpp"
#include "data/AppPreferencesStore.hpp"

#include <chrono>
#include <gtest/gtest.h>

namespace quenby {
namespace {

using Observation = ShortcutTestMonitor::Observation;
using Outcome = Observation::Outcome;
using Phase = ShortcutTestSession::Phase;
using std::chrono::seconds;

struct Fixture {
  InMemoryKeyValueStore defaults;
  AppPreferencesStore preferences{defaults, [](const std::string&) {}};
  ManualScheduler scheduler;
  ShortcutTestMonitor monitor;
  ShortcutDiagnostics diagnostics;
  EnglishLocalizer localizer;
  ShortcutTestSession session{{.monitor = monitor,
                               .scheduler = scheduler,
                               .diagnostics = diagnostics,
                               .preferences = preferences,
                               .localizer = localizer}};
};

TEST(ShortcutTestSessionTest, ThePressWithinFiveSecondsIsDescribedAndEndsTheTest) {
  Fixture f;
  f.session.start();
  EXPECT_TRUE(f.monitor.isArmed());
  EXPECT_EQ(f.session.status(), "Press Option with a digit or a letter… 5");
  f.scheduler.advanceBy(seconds(4));
  EXPECT_EQ(f.session.status(), "Press Option with a digit or a letter… 1");

  f.monitor.report(
      {.key = '3', .outcome = Outcome::switchToApplication, .applicationName = "Safari"});
  EXPECT_EQ(f.session.phase(), Phase::observed);
  EXPECT_EQ(f.session.pressed(), "⌥3");
  EXPECT_EQ(f.session.outcome(), "Would open Safari (Dock position 3)");
  EXPECT_FALSE(f.monitor.isArmed());
  EXPECT_EQ(f.scheduler.pendingCount(), 0U);
  EXPECT_EQ(f.diagnostics.testGeneration(), 1);
}

TEST(ShortcutTestSessionTest, EachOutcomeIsToldInWords) {
  const std::vector<std::pair<Observation, std::string>> cases{
      {{.modifier = ActivationModifierPreference::control,
        .key = 'S',
        .outcome = Outcome::switchToApplication,
        .applicationName = "Safari"},
       "Would open Safari (assigned to S)"},
      {{.key = '2', .outcome = Outcome::hideApplication, .applicationName = "Safari"},
       "Would hide Safari: it is already in front"},
      {{.key = 'Q', .outcome = Outcome::unassigned, .keyTypesAsUsual = true},
       "No application is assigned to Q: the key types as usual"},
      {{.key = '7',
        .outcome = Outcome::dockPositionUnavailable,
        .dockProblem = NumberMappingProblem::emptyDockPosition()},
       "Dock position 7 does not contain a pinned application. Number shortcuts follow Dock "
       "order and cannot be edited in Quenby."},
      {{.key = 'C',
        .outcome = Outcome::cannotSwitch,
        .keyTypesAsUsual = true,
        .failure =
            AppSwitchConfigurationFailure::unresolved(ApplicationResolutionProblem::notFound())},
       "The last-known path is no longer valid and no installed copy could be found. Select the "
       "application again. The key types as usual."},
  };
  for (const auto& [observation, expected] : cases) {
    Fixture f;
    f.session.start();
    f.monitor.report(observation);
    EXPECT_EQ(f.session.outcome(), expected);
  }
}

TEST(ShortcutTestSessionTest, SilenceForFiveSecondsIsAPossibleConflictUntilAShortcutGetsThrough) {
  Fixture f;
  f.preferences.setActivationModifier(ActivationModifierPreference::control);
  f.session.start();
  f.scheduler.advanceBy(seconds(5));
  EXPECT_EQ(f.session.phase(), Phase::timedOut);
  EXPECT_EQ(f.session.status(), "Nothing was pressed within five seconds.");
  EXPECT_FALSE(f.monitor.isArmed());
  EXPECT_EQ(f.diagnostics.testedModifier(), ActivationModifierPreference::control);
  ASSERT_TRUE(f.diagnostics.manualConflict().has_value());
  EXPECT_NE(f.diagnostics.manualConflict()->message.find("Control"), std::string::npos);

  f.session.start();
  f.monitor.report({.key = 'Q', .outcome = Outcome::unassigned});
  EXPECT_FALSE(f.diagnostics.hasIssue());
  EXPECT_EQ(f.diagnostics.testGeneration(), 2);
}

TEST(ShortcutTestSessionTest, CancellingDisarmsAndForgetsAndShortcutsCannotBeTestedWithoutRuntime) {
  Fixture f;
  int changes = 0;
  const auto observation = f.session.observe([&] { ++changes; });
  f.session.start();
  f.session.cancel();
  EXPECT_EQ(f.session.phase(), Phase::idle);
  EXPECT_FALSE(f.monitor.isArmed());
  f.scheduler.advanceBy(seconds(10));
  EXPECT_EQ(f.session.phase(), Phase::idle);
  EXPECT_FALSE(f.diagnostics.hasIssue());
  EXPECT_EQ(changes, 2);

  f.diagnostics.setRuntimeAvailable(false);
  f.session.start();
  EXPECT_FALSE(f.monitor.isArmed());
  EXPECT_EQ(f.session.phase(), Phase::idle);
}

} // namespace
} // namespace quenby
