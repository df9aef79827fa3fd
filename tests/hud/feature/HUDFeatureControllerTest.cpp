#include "hud/feature/HUDFeatureController.hpp"

#include "hud/tap/TapHarness.hpp"

#include <gtest/gtest.h>
#include <memory>

namespace quenby {
namespace {

using namespace std::chrono_literals;
using Kind = EventTapPermissionKind;

/// The feature over a real tap on the scripted system, with permissions the test grants.
struct FeatureHarness {
  FeatureHarness() {
    tap.tap.setOnFailure(
        [this](GlobalKeyboardEventTapFailure failure) { feature.handleTapFailure(failure); });
    token = feature.observeHealth([this] { ++healthChanges; });
  }
  void grant(bool accessibility, bool inputMonitoring) {
    accessibilityTrusted = accessibility;
    inputMonitoringGranted = inputMonitoring;
  }

  TapHarness tap;
  bool accessibilityTrusted = false;
  bool inputMonitoringGranted = false;
  std::vector<Kind> prompts;
  SystemEventTapPermission permission{{
      .accessibilityTrusted = [this] { return accessibilityTrusted; },
      .inputMonitoringGranted = [this] { return inputMonitoringGranted; },
      .requestAccessibility = [this] { prompts.push_back(Kind::accessibility); },
      .requestInputMonitoring = [this] { prompts.push_back(Kind::inputMonitoring); },
      .openSettingsURL = [](const std::string&) {},
  }};
  HUDFeatureController feature{permission, tap.tap, UserDefaultsHUDFeaturePreferences(tap.defaults),
                               tap.scheduler};
  int healthChanges = 0;
  ObservationToken token;
};

TEST(HUDFeatureControllerTest, PromptsOnceThenTurnsReadyOnTheNextPollAfterTheGrant) {
  auto h = std::make_unique<FeatureHarness>();
  h->feature.enable();
  EXPECT_EQ(h->prompts, (std::vector{Kind::accessibility, Kind::inputMonitoring}));
  EXPECT_EQ(h->feature.health(), HUDHealth::needsPermission({false, false}));
  EXPECT_FALSE(h->tap.tap.isRunning());

  h->grant(true, true);
  h->tap.scheduler.advanceBy(999ms);
  EXPECT_FALSE(h->tap.tap.isRunning());
  h->tap.scheduler.advanceBy(1ms);
  EXPECT_EQ(h->feature.health(), HUDHealth::ready());
  EXPECT_TRUE(h->tap.tap.isRunning());

  // Off and on again: no second prompt, even with a permission revoked meanwhile.
  h->feature.disable();
  EXPECT_EQ(h->feature.health(), HUDHealth::disabled());
  EXPECT_FALSE(h->feature.isPolling());
  EXPECT_FALSE(h->tap.tap.isRunning());
  h->grant(false, true);
  h->feature.enable();
  EXPECT_EQ(h->prompts.size(), 2U);
  EXPECT_EQ(h->feature.health(), HUDHealth::needsPermission({false, true}));
}

TEST(HUDFeatureControllerTest, RestoringAtLaunchNeitherPromptsNorPolls) {
  auto h = std::make_unique<FeatureHarness>();
  h->feature.restore();
  EXPECT_EQ(h->feature.health(), HUDHealth::disabled());
  EXPECT_EQ(h->healthChanges, 0);

  h->tap.defaults.set(UserDefaultsHUDFeaturePreferences::kEnabledKey, true);
  h->feature.restore();
  EXPECT_TRUE(h->prompts.empty());
  EXPECT_FALSE(h->feature.isPolling());
  EXPECT_EQ(h->feature.health(), HUDHealth::needsPermission({false, false}));

  h->grant(true, true);
  h->feature.restore();
  EXPECT_TRUE(h->tap.tap.isRunning());
  // An unchanged state tells nobody.
  const int changes = h->healthChanges;
  h->feature.refresh();
  EXPECT_EQ(h->healthChanges, changes);
}

TEST(HUDFeatureControllerTest, ATapFailureLatchesUntilRetryAndTheFirstOneWins) {
  auto h = std::make_unique<FeatureHarness>();
  h->grant(true, true);
  h->feature.enable();
  ASSERT_TRUE(h->tap.tap.isRunning());

  h->tap.system.disable(KeyboardTapEventType::tapDisabledByUserInput);
  const auto userInput = HUDTapFailure::runtime(GlobalKeyboardEventTapFailure::disabledByUserInput);
  EXPECT_EQ(h->feature.health(), HUDHealth::tapFailure(userInput));
  EXPECT_FALSE(h->tap.tap.isRunning());
  h->feature.handleTapFailure(GlobalKeyboardEventTapFailure::repeatedDisable);
  EXPECT_EQ(h->feature.latchedTapFailure(), userInput);

  // The poll does not restart it, nor does switching the feature off and on.
  h->tap.scheduler.advanceBy(3s);
  h->feature.disable();
  EXPECT_EQ(h->feature.health(), HUDHealth::disabled());
  h->feature.enable();
  EXPECT_EQ(h->feature.health(), HUDHealth::tapFailure(userInput));
  EXPECT_FALSE(h->tap.tap.isRunning());

  h->feature.retry();
  EXPECT_EQ(h->feature.health(), HUDHealth::ready());
  EXPECT_TRUE(h->tap.tap.isRunning());
}

TEST(HUDFeatureControllerTest, ARefusedTapIsLatchedAsACreationFailure) {
  auto h = std::make_unique<FeatureHarness>();
  h->grant(true, true);
  h->tap.system.refuseTap = true;
  h->feature.enable();
  EXPECT_EQ(h->feature.health(), HUDHealth::tapFailure(HUDTapFailure::creation()));
  EXPECT_EQ(h->feature.health().failure.description().english,
            "The global keyboard event tap could not be created.");

  h->tap.system.refuseTap = false;
  h->tap.scheduler.advanceBy(2s);
  EXPECT_FALSE(h->tap.tap.isRunning());
  h->feature.retry();
  EXPECT_TRUE(h->tap.tap.isRunning());

  h->feature.stop();
  EXPECT_FALSE(h->tap.tap.isRunning());
  EXPECT_FALSE(h->feature.isPolling());
}

} // namespace
} // namespace quenby
