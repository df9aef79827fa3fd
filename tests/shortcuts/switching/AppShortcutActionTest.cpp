#include "shortcuts/switching/AppShortcutAction.hpp"

#include "shortcuts/switching/WorkspaceAppHider.hpp"

#include <gtest/gtest.h>
#include <memory>

namespace quenby {
namespace {

using Kind = AppShortcutAction::Kind;

AppMapping notesMapping(ApplicationResolution resolution) {
  return {.displayName = "Notes",
          .bundleIdentifier = "com.apple.Notes",
          .lastKnownURL = FileURL::fromPath("/System/Applications/Notes.app"),
          .resolution = std::move(resolution),
          .source = MappingSource::dock(2)};
}

const AppMapping kNotes = notesMapping(
    ApplicationResolution::resolved(FileURL::fromPath("/System/Applications/Notes.app")));

TEST(AppShortcutAction, HidesOnlyTheMappedFrontApplicationWhenThePreferenceIsOn) {
  InertFrontmostApplicationProvider frontmost;
  frontmost.setFrontmostBundleIdentifier("com.apple.Notes");
  EXPECT_EQ(AppShortcutAction::decide(kNotes, true, frontmost).kind, Kind::hide);
  EXPECT_EQ(AppShortcutAction::decide(kNotes, false, frontmost).kind, Kind::switchToApplication)
      << "with the preference off the front application is activated again";

  frontmost.setFrontmostBundleIdentifier("com.apple.notes");
  EXPECT_EQ(AppShortcutAction::decide(kNotes, true, frontmost).kind, Kind::switchToApplication)
      << "identifiers compare case-sensitively";
  frontmost.setFrontmostBundleIdentifier(std::nullopt);
  EXPECT_EQ(AppShortcutAction::decide(kNotes, true, frontmost).kind, Kind::switchToApplication);
}

TEST(AppShortcutAction, AnUnusableMappingIsReportedEvenWhenItsApplicationIsInFront) {
  InertFrontmostApplicationProvider frontmost;
  frontmost.setFrontmostBundleIdentifier("com.apple.Notes");
  const auto action =
      AppShortcutAction::decide(notesMapping(ApplicationResolution::notFound()), true, frontmost);
  EXPECT_EQ(action.kind, Kind::reportFailure);
  EXPECT_EQ(action.failure,
            AppSwitchConfigurationFailure::unresolved(ApplicationResolutionProblem::notFound()));
}

// The front application as the hider sees it ("" for one without identifier); counts hides.
class FakeApplication final : public HidableApplication {
public:
  FakeApplication(const std::string& front, bool agrees, int& hides)
      : front_(front), agrees_(agrees), hides_(hides) {}
  [[nodiscard]] std::optional<std::string> bundleIdentifier() const override {
    return front_.empty() ? std::nullopt : std::optional(front_);
  }
  bool hide() override {
    ++hides_;
    return agrees_;
  }

private:
  std::string front_;
  bool agrees_;
  int& hides_;
};

TEST(WorkspaceAppHider, HidesOnlyWhenTheFrontApplicationIsStillTheMappedOne) {
  int hides = 0;
  std::optional<std::string> front;
  bool agrees = true;
  WorkspaceAppHider hider([&]() -> std::unique_ptr<HidableApplication> {
    if (!front) {
      return nullptr;
    }
    return std::make_unique<FakeApplication>(*front, agrees, hides);
  });

  EXPECT_FALSE(hider.hideIfFrontmost(kNotes)) << "nothing in front";
  front = "";
  EXPECT_FALSE(hider.hideIfFrontmost(kNotes)) << "front application without identifier";
  front = "com.apple.Safari";
  EXPECT_FALSE(hider.hideIfFrontmost(kNotes)) << "the front changed since the caller looked";
  EXPECT_EQ(hides, 0);

  front = "com.apple.Notes";
  EXPECT_TRUE(hider.hideIfFrontmost(kNotes));
  agrees = false;
  EXPECT_FALSE(hider.hideIfFrontmost(kNotes)) << "a full-screen application refuses";
  EXPECT_EQ(hides, 2);
}

} // namespace
} // namespace quenby
