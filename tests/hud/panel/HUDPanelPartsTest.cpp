// The panel's smaller parts: presentation metrics, the outside-click monitor, the key-click
// decision and the panel's make-up.

#include "hud/panel/HUDKeyClickTracker.hpp"
#include "hud/panel/HUDOutsideClickMonitor.hpp"
#include "hud/panel/HUDPerformanceMetrics.hpp"
#include "hud/panel/KeyboardHUDPanelConfiguration.hpp"
#include "hud/view/KeyboardHUDLayout.hpp"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace quenby {
namespace {

// What a profiling tool would show, one line per signpost.
struct RecordingSignposter final : HUDPresentationSignposting {
  void beginInterval() override {
    log.push_back("begin " + std::string(kHUDPresentationIntervalName));
  }
  void emitEvent(HUDPresentationPhase phase) override {
    log.push_back("event " + std::string(hudPresentationSignpostName(phase)));
  }
  void endInterval(HUDPresentationOutcome outcome) override {
    log.push_back("end " + std::string(hudPresentationEndMessage(outcome, false)));
  }
  std::vector<std::string> log;
};

struct MetricsFixture {
  std::uint64_t now = 5'000'000;
  std::vector<HUDPresentationPhase> observed;
  RecordingSignposter signposter;
  HUDPerformanceMetrics metrics{[this] { return now; },
                                [this](HUDPresentationPhase phase) { observed.push_back(phase); },
                                signposter};
};

TEST(HUDPerformanceMetricsTest, MeasuresFromGestureToFirstFrame) {
  MetricsFixture f;
  f.metrics.mark(HUDPresentationPhase::snapshotApplied);
  f.metrics.completePresentation();
  f.metrics.cancelPresentation();
  EXPECT_TRUE(f.signposter.log.empty());

  f.metrics.beginPresentation();
  EXPECT_EQ(f.metrics.startedAtNanoseconds(), 5'000'000U);
  f.metrics.mark(HUDPresentationPhase::snapshotApplied);
  f.metrics.mark(HUDPresentationPhase::panelOrdered);
  f.now += 12'500'000;
  f.metrics.completePresentation();
  EXPECT_EQ(f.metrics.samples(), std::vector{12.5});
  EXPECT_EQ(f.metrics.startedAtNanoseconds(), std::nullopt);
  EXPECT_EQ(f.signposter.log,
            (std::vector<std::string>{"begin HUDPresentation", "event Recognition",
                                      "event SnapshotApplied", "event PanelOrdered",
                                      "event FirstFrameCommitted", "end outcome=completed"}));
  EXPECT_EQ(f.observed.size(), 4U);
  EXPECT_EQ(f.observed.back(), HUDPresentationPhase::firstFrameCommitted);
}

TEST(HUDPerformanceMetricsTest, ANewGestureOrABackwardClockCancels) {
  MetricsFixture f;
  f.metrics.beginPresentation();
  f.now += 1'000;
  f.metrics.beginPresentation();
  EXPECT_EQ(f.metrics.startedAtNanoseconds(), 5'001'000U);
  f.now -= 2'000;
  f.metrics.completePresentation();

  EXPECT_TRUE(f.metrics.samples().empty());
  EXPECT_EQ(f.signposter.log,
            (std::vector<std::string>{"begin HUDPresentation", "event Recognition",
                                      "end outcome=cancelled", "begin HUDPresentation",
                                      "event Recognition", "end outcome=cancelled"}));
  EXPECT_EQ(hudPresentationEndMessage(HUDPresentationOutcome::completed, true),
            "[Error] Interval already ended");
}

struct MonitorFixture {
  HUDOutsideClickMonitorDependencies dependencies() {
    return {
        .addLocalMonitor =
            [this](std::uint64_t mask, HUDOutsideClickMonitorDependencies::LocalHandler handler) {
              masks.push_back(mask);
              local = std::move(handler);
              return tokenNamed("local");
            },
        .addGlobalMonitor =
            [this](std::uint64_t mask, HUDOutsideClickMonitorDependencies::GlobalHandler handler) {
              masks.push_back(mask);
              global = std::move(handler);
              return tokenNamed("global");
            },
        .removeMonitor =
            [this](const HUDEventMonitorToken& token) {
              removed.push_back(*static_cast<std::string*>(token.get()));
            },
        .screenPoint =
            [](HUDMonitoredEvent event) { return *static_cast<const Point*>(event.handle); },
    };
  }
  static HUDEventMonitorToken tokenNamed(std::string name) {
    return std::make_shared<std::string>(std::move(name));
  }

  std::vector<std::uint64_t> masks;
  std::vector<std::string> removed;
  HUDOutsideClickMonitorDependencies::LocalHandler local;
  HUDOutsideClickMonitorDependencies::GlobalHandler global;
  std::vector<std::pair<HUDMouseButton, Point>> clicks;
};

TEST(HUDOutsideClickMonitorTest, ReportsEveryButtonPressAndNeverSwallowsIt) {
  MonitorFixture f;
  {
    HUDOutsideClickMonitor monitor(f.dependencies());
    const auto record = [&f](HUDMouseButton button, Point point) {
      f.clicks.emplace_back(button, point);
    };
    monitor.start(record);
    monitor.start(record);
    EXPECT_EQ(f.removed, (std::vector<std::string>{"local", "global"}));
    EXPECT_EQ(f.masks, std::vector<std::uint64_t>(4, 0x200000A));

    Point point{3, 4};
    EXPECT_EQ(f.local({1, &point}), &point);
    f.global({3, &point});
    f.global({25, &point});
    // A mouse-up (2) that slipped through the mask is nobody's business.
    EXPECT_EQ(f.local({2, &point}), &point);
    ASSERT_EQ(f.clicks.size(), 3U);
    EXPECT_EQ(f.clicks[0].first, HUDMouseButton::left);
    EXPECT_EQ(f.clicks[1].first, HUDMouseButton::right);
    EXPECT_EQ(f.clicks[2].first, HUDMouseButton::other);
    EXPECT_EQ(f.clicks[2].second, point);

    monitor.stop();
    monitor.stop();
    EXPECT_FALSE(monitor.isMonitoring());
    EXPECT_EQ(f.removed.size(), 4U);
    monitor.start(record);
  }
  // Destroyed while monitoring: nothing stays installed.
  EXPECT_EQ(f.removed.size(), 6U);
}

TEST(HUDKeyClickTrackerTest, OnlyAPressAndReleaseOnTheSameKeyClicks) {
  const KeyboardHUDLayout::Metrics metrics{1.25};
  const auto centreOf = [&](HUDKey key) {
    const Rect frame = *KeyboardHUDLayout::keyFrame(key, metrics);
    return KeyboardHUDLayout::hitTest({frame.x + frame.width / 2, frame.y + frame.height / 2},
                                      metrics);
  };
  HUDKeyClickTracker tracker;
  tracker.press(centreOf(HUDKey::letter('S')));
  EXPECT_TRUE(tracker.drag());
  EXPECT_EQ(tracker.release(centreOf(HUDKey::letter('S'))), HUDKey::letter('S'));

  // Pressed on S, dragged to D: nothing, and the press is forgotten.
  tracker.press(centreOf(HUDKey::letter('S')));
  EXPECT_EQ(tracker.release(centreOf(HUDKey::letter('D'))), std::nullopt);
  EXPECT_EQ(tracker.pressedKey(), std::nullopt);

  // A press between keys drags the view as usual and clicks nothing on release.
  tracker.press(KeyboardHUDLayout::hitTest({1, 1}, metrics));
  EXPECT_FALSE(tracker.drag());
  EXPECT_EQ(tracker.release(std::nullopt), std::nullopt);

  tracker.press(HUDKey::number(4));
  tracker.reset();
  EXPECT_EQ(tracker.release(HUDKey::number(4)), std::nullopt);
}

} // namespace
} // namespace quenby
