#include "shortcuts/switching/WorkspaceAppSwitchingAdapter.hpp"

#include "support/CountingCatalogRefresher.hpp"
#include "support/ScriptedApplicationOpener.hpp"
#include "support/ScriptedApplicationResolver.hpp"

#include <gtest/gtest.h>
#include <memory>
#include <set>

namespace quenby {
namespace {

class ScriptedPresence final : public ApplicationPresenceChecking {
public:
  [[nodiscard]] bool applicationExists(const FileURL& url) const override {
    return !missing.contains(url);
  }
  std::set<FileURL> missing;
};

const FileURL kOldURL = FileURL::fromPath("/Applications/Editor.app");
const FileURL kNewURL = FileURL::fromPath("/Users/x/Applications/Editor.app");

struct AdapterFixture : ::testing::Test {
  ScriptedApplicationResolver resolver;
  CountingCatalogRefresher catalog;
  ScriptedApplicationOpener opener;
  ScriptedPresence presence;
  std::unique_ptr<WorkspaceAppSwitchingAdapter> adapter =
      std::make_unique<WorkspaceAppSwitchingAdapter>(resolver, catalog, opener, presence);
  AppMapping mapping{.displayName = "Editor",
                     .bundleIdentifier = "com.example.editor",
                     .lastKnownURL = kOldURL,
                     .resolution = ApplicationResolution::resolved(kOldURL),
                     .source = MappingSource::letter('E')};

  int completions = 0;
  std::optional<AppSwitchingError> outcome;

  void switchNow() {
    adapter->switchToApplication(mapping, [this](std::optional<AppSwitchingError> error) {
      ++completions;
      outcome = std::move(error);
    });
  }
  void afterRefreshAnswer(ApplicationResolution resolution) {
    catalog.onRefresh = [this, resolution] {
      resolver.answers.insert_or_assign(mapping.bundleIdentifier, resolution);
    };
  }
};

TEST_F(AdapterFixture, OpensWhereTheCatalogFoundItWithoutRefreshing) {
  switchNow();
  EXPECT_EQ(opener.openedURLs, std::vector<FileURL>{kOldURL});
  EXPECT_EQ(catalog.refreshCount, 0U);
  EXPECT_EQ(completions, 1);
  EXPECT_FALSE(outcome);
}

TEST_F(AdapterFixture, ADeletedBundleIsLookedUpAgainOnceAndOpenedWhereItMoved) {
  presence.missing.insert(kOldURL);
  presence.missing.insert(kNewURL); // the second attempt must not check again
  afterRefreshAnswer(ApplicationResolution::resolved(kNewURL));
  switchNow();

  EXPECT_EQ(catalog.refreshCount, 1U);
  EXPECT_FALSE(catalog.withSpotlightCandidates) << "Launch Services must be asked afresh";
  EXPECT_EQ(opener.openedURLs, std::vector<FileURL>{kNewURL});
  EXPECT_EQ(completions, 1);
  EXPECT_FALSE(outcome);
}

TEST_F(AdapterFixture, SecondResolutionDecidesWhatIsReported) {
  presence.missing.insert(kOldURL);
  afterRefreshAnswer(ApplicationResolution::notFound());
  switchNow();
  EXPECT_EQ(outcome, AppSwitchingError::configuration(AppSwitchConfigurationFailure::unresolved(
                         ApplicationResolutionProblem::notFound())));

  const std::vector<FileURL> candidates{kOldURL, kNewURL};
  afterRefreshAnswer(ApplicationResolution::ambiguous(candidates));
  switchNow();
  EXPECT_EQ(outcome, AppSwitchingError::configuration(AppSwitchConfigurationFailure::unresolved(
                         ApplicationResolutionProblem::ambiguous(candidates))));
  EXPECT_EQ(catalog.refreshCount, 2U);
  EXPECT_TRUE(opener.openedURLs.empty());
  EXPECT_EQ(completions, 2);
}

TEST_F(AdapterFixture, AnUnresolvedFirstAnswerRefreshesBeforeGivingUp) {
  resolver.answers.insert_or_assign(mapping.bundleIdentifier, ApplicationResolution::notFound());
  afterRefreshAnswer(ApplicationResolution::resolved(kNewURL));
  switchNow();
  EXPECT_EQ(catalog.refreshCount, 1U);
  EXPECT_EQ(opener.openedURLs, std::vector<FileURL>{kNewURL});
  EXPECT_FALSE(outcome);
}

TEST_F(AdapterFixture, ARefusedOpenIsRetriedOnceAndOnlyTheSecondErrorCounts) {
  opener.errors = {"first refusal", "second refusal"};
  switchNow();
  EXPECT_EQ(catalog.refreshCount, 1U);
  EXPECT_EQ(opener.openedURLs, (std::vector<FileURL>{kOldURL, kOldURL}));
  EXPECT_EQ(outcome, AppSwitchingError::activationFailed("second refusal"));
  EXPECT_EQ(completions, 1);

  opener.errors = {"refused once"};
  switchNow();
  EXPECT_FALSE(outcome) << "a retry that opens is a success";
  EXPECT_EQ(catalog.refreshCount, 2U);
}

} // namespace
} // namespace quenby
