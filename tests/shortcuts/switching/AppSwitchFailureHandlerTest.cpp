#include "shortcuts/switching/AppSwitchFailureHandler.hpp"

#include <gtest/gtest.h>
#include <vector>

namespace quenby {
namespace {

class RecordingReporter final : public ConfigurationFailureReporting {
public:
  void report(const ConfigurationFailure& failure) override { reported.push_back(failure); }
  std::vector<ConfigurationFailure> reported;
};

struct FailureHandlerFixture : ::testing::Test {
  RecordingReporter reporter;
  EnglishLocalizer localizer;
  std::vector<AppSwitchingError> transient;
  AppSwitchFailureHandler handler{
      reporter, [this](const AppSwitchingError& error) { transient.push_back(error); }, localizer};
  AppMapping mapping{.displayName = "Mail",
                     .bundleIdentifier = "com.apple.mail",
                     .lastKnownURL = FileURL::fromPath("/System/Applications/Mail.app"),
                     .resolution = ApplicationResolution::notFound(),
                     .source = MappingSource::letter('M')};

  void fail(AppSwitchConfigurationFailure failure) {
    handler.handleFailure(AppSwitchingError::configuration(std::move(failure)), mapping);
  }
};

TEST_F(FailureHandlerFixture, ReportsEachKindOfMappingProblemUnderItsOwnId) {
  fail(AppSwitchConfigurationFailure::unresolved(ApplicationResolutionProblem::notFound()));
  fail(AppSwitchConfigurationFailure::unresolved(
      ApplicationResolutionProblem::ambiguous({FileURL::fromPath("/Applications/A.app"),
                                               FileURL::fromPath("/Users/x/Applications/A.app")})));
  fail(AppSwitchConfigurationFailure::invalidResolvedURL(FileURL::fromPath("/tmp/Mail")));

  ASSERT_EQ(reporter.reported.size(), 3U);
  EXPECT_EQ(reporter.reported[0],
            (ConfigurationFailure{
                .id = "switch.configuration.com.apple.mail.not-found",
                .title = "Application Mapping Needs Attention",
                .message = "Mail: The last-known path is no longer valid and no installed copy "
                           "could be found. Select the application again."}));
  EXPECT_EQ(reporter.reported[1].id, "switch.configuration.com.apple.mail.ambiguous");
  EXPECT_EQ(reporter.reported[1].message,
            "Mail: Multiple installed copies match this bundle identifier. Select the intended "
            "application again. Candidates: /Applications/A.app, /Users/x/Applications/A.app.");
  EXPECT_EQ(reporter.reported[2].id, "switch.configuration.com.apple.mail.invalid-url");
  EXPECT_EQ(reporter.reported[2].message,
            "Mail: The resolved application URL is invalid. Select the application again.");
  EXPECT_TRUE(transient.empty());
}

TEST_F(FailureHandlerFixture, ActivationErrorsOnlyReachTheTransientObserver) {
  handler.handleFailure(AppSwitchingError::activationFailed("The application is damaged."),
                        mapping);
  EXPECT_TRUE(reporter.reported.empty());
  ASSERT_EQ(transient.size(), 1U);
  EXPECT_EQ(transient[0].description(localizer), "The application is damaged.");
}

} // namespace
} // namespace quenby
