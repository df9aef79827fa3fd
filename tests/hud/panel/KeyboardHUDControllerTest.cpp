#include "hud/panel/KeyboardHUDController.hpp"

#include "base/InMemoryKeyValueStore.hpp"
#include "base/ManualScheduler.hpp"
#include "base/ObserverList.hpp"
#include "data/AppPreferencesStore.hpp"
#include "hud/panel/HUDPerformanceMetrics.hpp"
#include "hud/panel/RecordingKeyboardHUDPanel.hpp"
#include "support/RecordingAppSwitchFailureHandler.hpp"

#include <chrono>
#include <gtest/gtest.h>

namespace quenby {
namespace {

using namespace std::chrono_literals;
using Phase = KeyboardHUDContentAnimationPhase;

AppMapping mapping(MappingSource source, std::string bundle, std::string path) {
  const auto url = FileURL::fromPath(path);
  return {.displayName = url.lastPathComponentWithoutExtension(),
          .bundleIdentifier = std::move(bundle),
          .lastKnownURL = url,
          .resolution = ApplicationResolution::resolved(url),
          .source = source};
}

struct FakeMappings final : KeyboardMappingSnapshotProviding {
  [[nodiscard]] const KeyboardMappingSnapshot& snapshot() const override { return current; }
  [[nodiscard]] ObservationToken observe(SnapshotHandler handler) override {
    return changed.add([this, handler] { handler(current); });
  }
  void publish() { changed.notify(); }
  KeyboardMappingSnapshot current;
  ObserverList<> changed;
};

struct FakeRunning final : RunningApplicationMonitoring {
  [[nodiscard]] const std::set<std::string>& runningBundleIdentifiers() const override {
    return running;
  }
  [[nodiscard]] ObservationToken observe(std::function<void()> handler) override {
    return changed.add(std::move(handler));
  }
  std::set<std::string> running;
  ObserverList<> changed;
};

struct FakeIcons final : ApplicationIconProviding {
  [[nodiscard]] std::shared_ptr<const PreparedApplicationIcon>
  icon(const AppMapping& mapping) const override {
    const auto found = icons.find(mapping.bundleIdentifier);
    return found != icons.end() ? found->second : nullptr;
  }
  [[nodiscard]] ObservationToken observeIcons(std::function<void()> handler) override {
    return changed.add(std::move(handler));
  }
  std::map<std::string, std::shared_ptr<const PreparedApplicationIcon>> icons;
  ObserverList<> changed;
};

struct FakePlacement final : WindowPlacementSnapshotProviding {
  [[nodiscard]] WindowPlacementSnapshot snapshot() const override { return current; }
  WindowPlacementSnapshot current;
};

struct RecordingSubmitter final : AppSwitchCommandSubmitting {
  void submit(const AppMapping& mapping) override {
    if (onSubmit) {
      onSubmit();
    }
    submitted.push_back(mapping);
  }
  std::function<void()> onSubmit;
  std::vector<AppMapping> submitted;
};

struct RecordingDigitInfo final : HUDDigitInfoPresenting {
  void show(int digit, const std::string& message) override {
    shown.push_back(std::to_string(digit) + ": " + message);
  }
  std::vector<std::string> shown;
};

// The system's monitors: the test delivers events through the handlers it keeps.
struct FakeMonitors {
  HUDOutsideClickMonitorDependencies dependencies() {
    return {
        .addLocalMonitor =
            [this](std::uint64_t, HUDOutsideClickMonitorDependencies::LocalHandler handler) {
              local = std::move(handler);
              return std::make_shared<int>(1);
            },
        .addGlobalMonitor =
            [this](std::uint64_t, HUDOutsideClickMonitorDependencies::GlobalHandler handler) {
              global = std::move(handler);
              return std::make_shared<int>(2);
            },
        .removeMonitor = [this](const HUDEventMonitorToken&) { ++removed; },
        .screenPoint =
            [](HUDMonitoredEvent event) { return *static_cast<const Point*>(event.handle); },
    };
  }
  HUDOutsideClickMonitorDependencies::LocalHandler local;
  HUDOutsideClickMonitorDependencies::GlobalHandler global;
  int removed = 0;
};

// Two 1440×900 screens side by side, the left one at the origin, the mouse on the right one.
constexpr Rect kLeftScreen{0, 0, 1440, 900};
constexpr Rect kRightScreen{1440, 0, 1440, 900};

struct Fixture {
  Fixture() {
    placement.current = {{kLeftScreen, kRightScreen}, kLeftScreen, Point{2000, 400}};
    preferences.setWindowPlacement(WindowPlacementPreference::displayUnderMouse);
    preferences.setHUDSize(HUDSizePreference::small);
    preferences.setHUDOpacity(HUDOpacityPreference::eighty);
    mappings.current.letterMappings.emplace(
        'S', mapping(MappingSource::letter('S'), "com.example.Safari", "/Applications/Safari.app"));
    mappings.current.numberEntries.set(
        2, NumberMappingEntry::mapped(
               mapping(MappingSource::dock(2), "com.example.Mail", "/Applications/Mail.app")));
    controller.setOnFirstFramePresented([this] { ++firstFramesPresented; });
  }

  RecordingKeyboardHUDPanel& panel() { return *panelFactory.panel; }
  void clickAt(Point point, std::uint64_t type = HUDOutsideClickMonitor::kLeftMouseDown) {
    monitors.global({type, &point});
  }

  InMemoryKeyValueStore defaults;
  AppPreferencesStore preferences{defaults, [](const std::string&) {}};
  FakeMappings mappings;
  FakeRunning running;
  FakeIcons icons;
  FakePlacement placement;
  RecordingSubmitter submitter;
  RecordingAppSwitchFailureHandler failureHandler;
  NoOpShortcutAnimationPresenter animation;
  InertAppHider hider;
  RecordingDigitInfo digitInfo;
  ManualScheduler scheduler;
  std::vector<HUDPresentationPhase> phases;
  InertHUDPresentationSignposter signposter;
  HUDPerformanceMetrics metrics{HUDPerformanceMetrics::nanosecondsOf(scheduler),
                                [this](HUDPresentationPhase phase) { phases.push_back(phase); },
                                signposter};
  RecordingKeyboardHUDPanelFactory panelFactory;
  FakeMonitors monitors;
  EnglishLocalizer localizer;
  KeyboardHUDViewModel model{HUDSizePreference::standard, HUDThemePreference::system,
                             "Open Quenby Settings"};
  int firstFramesPresented = 0;
  KeyboardHUDController controller{{
      .mappings = mappings,
      .iconProvider = icons,
      .runningApplications = running,
      .switchCommands = submitter,
      .failureHandler = failureHandler,
      .animation = animation,
      .appHider = hider,
      .digitInfo = digitInfo,
      .preferences = preferences,
      .windowPlacement = placement,
      .model = model,
      .metrics = metrics,
      .panelFactory = panelFactory,
      .outsideClickMonitor = monitors.dependencies(),
      .contentAnimationScheduler = scheduler,
      .actionScheduler = scheduler,
      .localizer = localizer,
  }};
};

TEST(KeyboardHUDControllerTest, ShowsCentredOnTheChosenScreenAndOnlyOnce) {
  Fixture f;
  f.running.running = {"com.example.Mail"};
  f.metrics.beginPresentation();
  f.controller.show();

  ASSERT_TRUE(f.controller.isVisible());
  EXPECT_EQ(f.panel().contentSize(), (Size{820, 390}));
  EXPECT_EQ(f.model.hudSize(), HUDSizePreference::small);
  EXPECT_EQ(f.panel().origin, (Point{1440 + 720 - 410, 450 - 195}));
  EXPECT_DOUBLE_EQ(f.panel().alpha(), 0.8);
  EXPECT_EQ(f.model.current().snapshot, f.mappings.current);
  EXPECT_EQ(f.model.current().runningBundleIdentifiers, f.running.running);
  EXPECT_EQ(f.controller.presentationTargetFrame(), kRightScreen);
  EXPECT_EQ(f.phases,
            (std::vector{HUDPresentationPhase::recognition, HUDPresentationPhase::snapshotApplied,
                         HUDPresentationPhase::panelOrdered}));

  // Showing again while up: no re-centre, no new presentation, no new alpha.
  f.panel().origin = {10, 10};
  const auto generation = f.controller.presentationGeneration();
  f.controller.show();
  EXPECT_EQ(f.panel().origin, (Point{10, 10}));
  EXPECT_EQ(f.controller.presentationGeneration(), generation);
  EXPECT_EQ(f.panel().alphaWrites, 1);
  EXPECT_EQ(f.panel().firstFrames.size(), 1U);

  f.scheduler.advanceBy(16ms);
  f.panel().firstFrames[0]();
  EXPECT_EQ(f.firstFramesPresented, 1);
  EXPECT_EQ(f.metrics.samples(), std::vector{16.0});
}

TEST(KeyboardHUDControllerTest, FirstFrameOfAnEarlierPresentationIsIgnored) {
  Fixture f;
  f.metrics.beginPresentation();
  f.controller.show();
  f.controller.hide();
  EXPECT_EQ(f.metrics.startedAtNanoseconds(), std::nullopt);
  f.panel().firstFrames[0]();
  EXPECT_EQ(f.firstFramesPresented, 0);

  // Shown again: only the new presentation's frame counts, once.
  f.controller.show();
  f.panel().firstFrames[0]();
  EXPECT_EQ(f.firstFramesPresented, 0);
  f.panel().firstFrames[1]();
  EXPECT_EQ(f.firstFramesPresented, 1);
  EXPECT_TRUE(f.metrics.samples().empty());
}

TEST(KeyboardHUDControllerTest, PanelThatStaysHiddenUndoesTheShow) {
  Fixture f;
  f.panel().refusesToShow = true;
  f.metrics.beginPresentation();
  f.controller.show();

  EXPECT_FALSE(f.controller.isVisible());
  EXPECT_EQ(f.controller.presentationGeneration(), 2U);
  EXPECT_EQ(f.controller.presentationTargetFrame(), std::nullopt);
  EXPECT_EQ(f.metrics.startedAtNanoseconds(), std::nullopt);
  EXPECT_EQ(f.monitors.local, nullptr);
  f.panel().firstFrames[0]();
  EXPECT_EQ(f.firstFramesPresented, 0);
}

TEST(KeyboardHUDControllerTest, ClickOutsideHidesAndIsNeverSwallowed) {
  Fixture f;
  f.controller.show();
  const Rect frame = f.panel().frame();

  f.clickAt({frame.x + 5, frame.y + 5}, HUDOutsideClickMonitor::kRightMouseDown);
  f.clickAt({frame.x + 5, frame.y + 5});
  EXPECT_TRUE(f.controller.isVisible());

  // Our own menu bar item, say: seen by the local monitor, which hands the event on untouched.
  Point outside{frame.x - 1, frame.y};
  EXPECT_EQ(f.monitors.local({HUDOutsideClickMonitor::kOtherMouseDown, &outside}), &outside);
  EXPECT_FALSE(f.controller.isVisible());
  EXPECT_EQ(f.monitors.removed, 2);

  // Hiding stops the monitors even when the panel is already gone.
  f.controller.show();
  f.panel().visible = false;
  f.controller.hide();
  EXPECT_EQ(f.monitors.removed, 4);
}

TEST(KeyboardHUDControllerTest, ChangesCloseTogetherMakeOneFade) {
  Fixture f;
  int contentChanges = 0;
  KeyboardHUDMappingCache last;
  auto token = f.model.observe([&] {
    if (f.model.current() != last) {
      last = f.model.current();
      ++contentChanges;
    }
  });
  // Hidden: nothing is refreshed or scheduled.
  f.mappings.publish();
  EXPECT_EQ(f.scheduler.pendingCount(), 0U);

  f.controller.show();
  contentChanges = 0;
  f.mappings.current.letterMappings.erase('S');
  f.mappings.publish();
  EXPECT_EQ(f.model.contentAnimationPhase(), Phase::fadingOut);
  f.scheduler.advanceBy(50ms);
  f.running.running = {"com.example.Mail"};
  f.running.changed.notify();

  f.scheduler.advanceBy(119ms);
  EXPECT_EQ(contentChanges, 0);
  f.scheduler.advanceBy(1ms);
  EXPECT_EQ(contentChanges, 1);
  EXPECT_EQ(f.model.current().snapshot, f.mappings.current);
  EXPECT_EQ(f.model.contentAnimationPhase(), Phase::fadingIn);
  f.scheduler.advanceBy(180ms);
  EXPECT_EQ(f.model.contentAnimationPhase(), Phase::visible);
  EXPECT_EQ(contentChanges, 1);
  EXPECT_EQ(f.scheduler.pendingCount(), 0U);

  // Hiding mid-fade puts the content back to visible and drops the step.
  f.mappings.publish();
  f.controller.hide();
  EXPECT_EQ(f.model.contentAnimationPhase(), Phase::visible);
  EXPECT_EQ(f.scheduler.pendingCount(), 0U);
}

TEST(KeyboardHUDControllerTest, ArrivingIconsAppearWithoutAFade) {
  Fixture f;
  auto icon = std::make_shared<const PreparedApplicationIcon>();
  f.icons.icons["com.example.Safari"] = icon;
  f.icons.changed.notify();
  EXPECT_TRUE(f.model.current().icons.empty());

  f.controller.show();
  EXPECT_EQ(f.model.current().icons.at("com.example.Safari"), icon);
  f.icons.icons["com.example.Mail"] = icon;
  f.icons.changed.notify();
  EXPECT_EQ(f.model.current().icons.size(), 2U);
  EXPECT_EQ(f.model.contentAnimationPhase(), Phase::visible);
  EXPECT_EQ(f.scheduler.pendingCount(), 0U);
}

TEST(KeyboardHUDControllerTest, PicksHideAtOnceThenActAfterTheEvent) {
  Fixture f;
  f.submitter.onSubmit = [&f] { EXPECT_FALSE(f.controller.isVisible()); };
  f.controller.show();
  f.panelFactory.clicked(HUDKey::letter('S'));
  EXPECT_FALSE(f.controller.isVisible());
  EXPECT_TRUE(f.submitter.submitted.empty());
  f.scheduler.runPending();
  ASSERT_EQ(f.submitter.submitted.size(), 1U);
  EXPECT_EQ(f.submitter.submitted[0].bundleIdentifier, "com.example.Safari");

  // The Dock changed after the HUD was drawn: the pick follows what the user saw.
  f.controller.show();
  f.mappings.current.numberEntries.set(2, NumberMappingEntry());
  f.model.onNumberClicked(2);
  f.scheduler.runPending();
  ASSERT_EQ(f.submitter.submitted.size(), 2U);
  EXPECT_EQ(f.submitter.submitted[1].bundleIdentifier, "com.example.Mail");

  f.controller.show();
  f.controller.selectKey(HUDKey::number(7));
  f.scheduler.runPending();
  EXPECT_EQ(f.digitInfo.shown,
            (std::vector<std::string>{"7: Dock position 7 does not contain a pinned application. "
                                      "Number shortcuts follow Dock order and cannot be edited in "
                                      "Quenby."}));

  auto broken = mapping(MappingSource::letter('T'), "com.example.Tool", "/Applications/Tool");
  f.controller.perform(HUDKeyboardAction::execute(broken, HUDKey::letter('T')));
  f.controller.perform(HUDKeyboardAction::hideApplication(broken));
  f.scheduler.runPending();
  ASSERT_EQ(f.failureHandler.failures.size(), 1U);
  EXPECT_EQ(f.failureHandler.failures[0].second, broken);
  EXPECT_EQ(f.submitter.submitted.size(), 2U);
  EXPECT_EQ(f.hider.hiddenMappings(), std::vector<AppMapping>{broken});

  std::vector<std::string> opened;
  f.controller.setSettingsOpener(
      [&] { opened.push_back(f.controller.isVisible() ? "bad" : "settings"); });
  f.controller.setLetterEditorOpener(
      [&](char letter) { opened.push_back(std::string(1, letter)); });
  f.controller.show();
  f.model.onSettingsClicked();
  f.controller.show();
  f.controller.selectKey(HUDKey::letter('Q'));
  f.controller.show();
  f.controller.selectKey(HUDKey::other());
  EXPECT_TRUE(f.controller.isVisible());
  f.controller.selectKey(HUDKey::escape());
  EXPECT_FALSE(f.controller.isVisible());
  f.scheduler.runPending();
  EXPECT_EQ(opened, (std::vector<std::string>{"settings", "Q"}));
}

} // namespace
} // namespace quenby
