#include "shortcuts/mapping/AppMapping.hpp"
#include "shortcuts/mapping/KeyboardMappingSnapshot.hpp"
#include "shortcuts/mapping/NumberMappingSnapshot.hpp"

#include <gtest/gtest.h>
#include <unordered_set>

namespace quenby {
namespace {

AppMapping mail(MappingSource source = MappingSource::dock(1)) {
  const auto url = FileURL::fromPath("/System/Applications/Mail.app");
  return {"Mail", "com.apple.mail", url, ApplicationResolution::resolved(url), source};
}

TEST(MappingModelTest, SourcesOfDifferentKindsNeverMatch) {
  EXPECT_NE(MappingSource::dock(1), MappingSource::letter('1'));
  EXPECT_EQ(MappingSource::dock(3), MappingSource::dock(3));
  EXPECT_NE(MappingSource::letter('S'), MappingSource::letter('T'));
  EXPECT_EQ(MappingSource::dock(3).id(), "dock:3");
  EXPECT_EQ(MappingSource::letter('S').id(), "letter:S");
  // The same application behind a digit and a letter is two mappings.
  EXPECT_NE(mail(MappingSource::dock(1)), mail(MappingSource::letter('M')));
  EXPECT_NE(mail(MappingSource::dock(1)).id(), mail(MappingSource::letter('M')).id());
}

TEST(MappingModelTest, EveryFieldTakesPartInEqualityAndHashing) {
  AppMapping moved = mail();
  moved.lastKnownURL = FileURL::fromPath("/Applications/Mail.app");
  EXPECT_NE(mail(), moved);
  EXPECT_NE(std::hash<AppMapping>{}(mail()), std::hash<AppMapping>{}(moved));
  EXPECT_EQ(std::hash<AppMapping>{}(mail()), std::hash<AppMapping>{}(mail()));

  const auto a = FileURL::fromPath("/Applications/A.app");
  const auto b = FileURL::fromPath("/Users/x/Applications/A.app");
  std::unordered_set<ApplicationResolution> resolutions{
      ApplicationResolution::resolved(a), ApplicationResolution::notFound(),
      ApplicationResolution::ambiguous({a, b}), ApplicationResolution::ambiguous({b, a}),
      ApplicationResolution::ambiguous({a})};
  EXPECT_EQ(resolutions.size(), 5U);
  EXPECT_NE(ApplicationResolution::resolved(a), ApplicationResolution::ambiguous({a}));
}

TEST(MappingModelTest, OnlyAResolvedMappingCanBeLaunchedOtherwiseItExplainsWhy) {
  const EnglishLocalizer english;
  EXPECT_EQ(mail().launchURL(), FileURL::fromPath("/System/Applications/Mail.app"));
  EXPECT_FALSE(mail().problem().has_value());

  AppMapping ambiguous = mail();
  ambiguous.resolution = ApplicationResolution::ambiguous(
      {FileURL::fromPath("/Applications/A.app"), FileURL::fromPath("/Users/x/Applications/A.app")});
  EXPECT_FALSE(ambiguous.launchURL().has_value());
  const std::string message = ambiguous.problem()->message(english);
  EXPECT_TRUE(message.starts_with("Multiple installed copies match this bundle identifier."));
  EXPECT_TRUE(message.ends_with("Candidates: /Applications/A.app, /Users/x/Applications/A.app."))
      << message;

  AppMapping gone = mail();
  gone.resolution = ApplicationResolution::notFound();
  EXPECT_EQ(gone.problem()->message(english),
            "The last-known path is no longer valid and no installed copy could be found. Select "
            "the application again.");
}

TEST(MappingModelTest, ThePlaceholderSnapshotHasNineNotLoadedPositions) {
  const auto placeholder = NumberMappingSnapshot::placeholder(EnglishLocalizer());
  EXPECT_EQ(placeholder.revision, 0U);
  for (int position = 1; position <= 9; ++position) {
    const auto* problem = placeholder.entries.at(position).problem();
    ASSERT_NE(problem, nullptr) << position;
    EXPECT_EQ(problem->kind(), NumberMappingProblem::Kind::preferencesUnavailable);
    EXPECT_EQ(problem->message(), "Dock mappings have not loaded yet.");
  }
  // A snapshot nobody filled is empty, not "not loaded": the two must never be confused.
  EXPECT_NE(placeholder.entries, NumberMappingEntries{});
  EXPECT_EQ(NumberMappingEntries{}.at(9).problem()->kind(),
            NumberMappingProblem::Kind::emptyDockPosition);
}

} // namespace
} // namespace quenby
