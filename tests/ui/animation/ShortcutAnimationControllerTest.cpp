#include "ui/animation/ShortcutAnimationController.hpp"

#include "base/InMemoryKeyValueStore.hpp"
#include "base/ManualScheduler.hpp"
#include "data/AppPreferencesStore.hpp"

#include <chrono>
#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <vector>

namespace quenby {
namespace {

using namespace std::chrono_literals;
using Log = std::vector<std::string>;

struct RecordingPanel final : ShortcutAnimationPaneling {
  RecordingPanel(Log& log, const ShortcutAnimationViewModel& model) : log(log), model(model) {}
  void setFrameOrigin(Point origin) override {
    std::ostringstream line;
    line << "origin " << origin.x << "," << origin.y;
    log.push_back(line.str());
  }
  void prepareContent() override { log.emplace_back("prepare"); }
  void play() override { log.push_back("play " + model.shortcutLabel()); }
  void hide() override { log.emplace_back("hide"); }

  Log& log;
  const ShortcutAnimationViewModel& model;
};

struct Fixture : ShortcutAnimationPanelCreating,
                 ShortcutAnimationScreenProviding,
                 ShortcutAnimationMotionProviding {
  std::unique_ptr<ShortcutAnimationPaneling>
  makePanel(Size size, const ShortcutAnimationViewModel& model) override {
    log.push_back("make " + std::to_string(static_cast<int>(size.width)) + "x" +
                  std::to_string(static_cast<int>(size.height)));
    return std::make_unique<RecordingPanel>(log, model);
  }
  std::vector<ShortcutAnimationScreen> screens() const override { return screenList; }
  Point mouseLocation() const override { return mouse; }
  bool prefersReducedMotion() const override { return reduced; }

  /// The log since the last call.
  Log take() { return std::exchange(log, {}); }

  Log log;
  std::vector<ShortcutAnimationScreen> screenList{
      {.frame = {0, 0, 1440, 900}, .visibleFrame = {0, 0, 1440, 875}, .isMain = true},
      {.frame = {1440, 0, 1000, 800}, .visibleFrame = {1440, 0, 1000, 700}, .isMain = false}};
  Point mouse{720, 450};
  bool reduced = false;
  InMemoryKeyValueStore defaults;
  AppPreferencesStore preferences{defaults, [](const std::string&) {}};
  InertApplicationIconProvider icons;
  ManualScheduler scheduler;
  ShortcutAnimationController controller{{.preferences = preferences,
                                          .icons = icons,
                                          .panelFactory = *this,
                                          .screens = *this,
                                          .motion = *this,
                                          .scheduler = scheduler}};
};

AppMapping mapping(MappingSource source) {
  const auto url = FileURL::fromPath("/Applications/Notes.app");
  return {.displayName = "Notes",
          .bundleIdentifier = "com.apple.Notes",
          .lastKnownURL = url,
          .resolution = ApplicationResolution::resolved(url),
          .source = source};
}

constexpr auto kOption = ActivationModifierPreference::option;

TEST(ShortcutAnimationControllerTest, ASecondShortcutRestartsTheAnimationOnItsOwnScreen) {
  Fixture f;
  f.preferences.setShortcutAnimationDisplay(ShortcutAnimationDisplayPreference::displayUnderMouse);
  f.controller.present(mapping(MappingSource::dock(3)), kOption);
  EXPECT_EQ(f.take(), (Log{"make 168x168", "prepare", "origin 636,353.5", "play ⌥ 3"}));

  f.scheduler.advanceBy(200ms);
  f.mouse = {2000, 100};
  f.controller.present(mapping(MappingSource::letter('n')), ActivationModifierPreference::control);
  EXPECT_EQ(f.take(), (Log{"origin 1856,266", "play ⌃ N"}));

  // The first one's hide (due at 550 ms) is gone; the second one's comes 550 ms after it.
  f.scheduler.advanceBy(549ms);
  EXPECT_EQ(f.take(), Log{});
  f.scheduler.advanceBy(1ms);
  EXPECT_EQ(f.take(), Log{"hide"});
  EXPECT_EQ(f.scheduler.pendingCount(), 0U);
}

TEST(ShortcutAnimationControllerTest, SwitchingOffOrStoppingCutsTheAnimationShort) {
  Fixture f;
  f.controller.prewarm();
  f.controller.prewarm();
  EXPECT_EQ(f.take(), (Log{"make 168x168", "prepare"}));

  f.controller.present(mapping(MappingSource::dock(2)), kOption);
  f.preferences.setShortcutAnimationEnabled(false);
  EXPECT_EQ(f.take(), (Log{"origin 636,353.5", "play ⌥ 2", "hide"}));

  f.preferences.setShortcutAnimationEnabled(true);
  f.controller.present(mapping(MappingSource::dock(2)), kOption);
  f.controller.stop();
  f.scheduler.advanceBy(1s);
  EXPECT_EQ(f.take(), (Log{"origin 636,353.5", "play ⌥ 2", "hide"}));
}

TEST(ShortcutAnimationControllerTest, ReducedMotionFadesWithoutScaling) {
  const auto normal = ShortcutAnimationTimeline::normal();
  EXPECT_NEAR(normal.initialLayerScale().value(), 0.5667, 1e-4);
  EXPECT_DOUBLE_EQ(normal.totalDuration(), 0.55);
  const auto reduced = ShortcutAnimationTimeline::reduced();
  EXPECT_EQ(reduced.initialLayerScale(), std::nullopt);
  EXPECT_DOUBLE_EQ(reduced.totalDuration(), 0.40);

  Fixture f;
  f.reduced = true;
  f.controller.present(mapping(MappingSource::dock(4)), kOption);
  EXPECT_EQ(f.controller.model().timeline(), reduced);
  f.scheduler.advanceBy(400ms);
  EXPECT_EQ(f.take().back(), "hide");

  // Read again at every presentation.
  f.reduced = false;
  f.controller.present(mapping(MappingSource::dock(4)), kOption);
  EXPECT_EQ(f.controller.model().timeline(), normal);
}

} // namespace
} // namespace quenby
