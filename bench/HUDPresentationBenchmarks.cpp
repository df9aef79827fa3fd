// From the gesture to the HUD's first frame, as far as the core takes it: a double tap of left
// Option through the keyboard tap and the recogniser, the panel controller building the content
// of a full snapshot (9 Dock applications, 26 letters), placing, sizing and presenting the panel,
// and the first-frame callback completing the presentation measurement. The panel is a stand-in
// whose first frame arrives in the next turn of the main queue; what AppKit adds on a Mac (layout,
// drawing, the window server) is not in it. The counter `firstFrameMicroseconds` is the mean of
// the measurement's own samples, read with the steady clock as on a Mac.

#include "ScriptedBenchmarkTap.hpp"
#include "base/InMemoryKeyValueStore.hpp"
#include "base/ManualScheduler.hpp"
#include "data/AppPreferencesStore.hpp"
#include "hud/panel/HUDPerformanceMetrics.hpp"
#include "hud/panel/KeyboardHUDController.hpp"

#include <benchmark/benchmark.h>
#include <chrono>
#include <numeric>
#include <string>

namespace quenby {
namespace {

using namespace std::chrono_literals;

class FirstFramePanel final : public KeyboardHUDPanel {
public:
  FirstFramePanel(Size size, MainScheduler& scheduler) : size_(size), scheduler_(scheduler) {}
  [[nodiscard]] bool isVisible() const override { return visible_; }
  [[nodiscard]] Rect frame() const override {
    return {origin_.x, origin_.y, size_.width, size_.height};
  }
  void setFrameOrigin(Point origin) override { origin_ = origin; }
  [[nodiscard]] Size contentSize() const override { return size_; }
  void setContentSize(Size size) override { size_ = size; }
  [[nodiscard]] double alpha() const override { return alpha_; }
  void setAlpha(double alpha) override { alpha_ = alpha; }
  void setAppearance(std::optional<KeyboardHUDAppearanceName>) override {}
  void present(std::function<void()> onFirstFrame) override {
    visible_ = true;
    firstFrame_ = scheduler_.post(std::move(onFirstFrame));
  }
  void dismiss() override { visible_ = false; }

private:
  Point origin_;
  Size size_;
  double alpha_ = 1.0;
  bool visible_ = false;
  MainScheduler& scheduler_;
  ObservationToken firstFrame_;
};

class FirstFramePanelFactory final : public KeyboardHUDPanelMaking {
public:
  explicit FirstFramePanelFactory(MainScheduler& scheduler) : scheduler_(scheduler) {}
  [[nodiscard]] std::unique_ptr<KeyboardHUDPanel>
  makePanel(const KeyboardHUDPanelConfiguration& configuration, KeyboardHUDViewModel&,
            KeyClickHandler) override {
    return std::make_unique<FirstFramePanel>(configuration.contentSize, scheduler_);
  }

private:
  MainScheduler& scheduler_;
};

class FullSnapshot final : public KeyboardMappingSnapshotProviding {
public:
  FullSnapshot() {
    const auto mapping = [](MappingSource source, const std::string& name) {
      const auto url = FileURL::fromPath("/Applications/" + name + ".app");
      return AppMapping{.displayName = name,
                        .bundleIdentifier = "com.example." + name,
                        .lastKnownURL = url,
                        .resolution = ApplicationResolution::resolved(url),
                        .source = source};
    };
    for (int position = 1; position <= 9; ++position) {
      snapshot_.numberEntries.set(
          position, NumberMappingEntry::mapped(
                        mapping(MappingSource::dock(position), "Dock" + std::to_string(position))));
    }
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
      snapshot_.letterMappings.emplace(
          letter, mapping(MappingSource::letter(letter), std::string("Letter") + letter));
    }
  }
  [[nodiscard]] const KeyboardMappingSnapshot& snapshot() const override { return snapshot_; }
  [[nodiscard]] ObservationToken observe(SnapshotHandler) override { return {}; }

private:
  KeyboardMappingSnapshot snapshot_;
};

void BM_HUDRecognitionToFirstFrame(benchmark::State& state) {
  constexpr std::uint16_t kLeftOption = 58;
  ManualScheduler scheduler;
  const SteadyMonotonicClock steadyClock;
  InMemoryKeyValueStore defaults;
  AppPreferencesStore preferences(defaults, [](const std::string&) {});
  FullSnapshot mappings;
  InertApplicationIconProvider icons;
  InertRunningApplicationMonitor running;
  InertAppSwitchCommandSubmitter switchCommands;
  InertAppSwitchFailureHandler failureHandler;
  NoOpShortcutAnimationPresenter animation;
  InertAppHider hider;
  InertHUDDigitInfoPresenter digitInfo;
  InertWindowPlacementSnapshotProvider placement;
  EnglishLocalizer localizer;
  KeyboardHUDViewModel model(preferences.hudSize(), preferences.hudTheme(), "Open Settings");
  InertHUDPresentationSignposter signposter;
  HUDPerformanceMetrics metrics(
      HUDPerformanceMetrics::nanosecondsOf(steadyClock), [](HUDPresentationPhase) {}, signposter);
  FirstFramePanelFactory panels(scheduler);
  KeyboardHUDController controller(
      {.mappings = mappings,
       .iconProvider = icons,
       .runningApplications = running,
       .switchCommands = switchCommands,
       .failureHandler = failureHandler,
       .animation = animation,
       .appHider = hider,
       .digitInfo = digitInfo,
       .preferences = preferences,
       .windowPlacement = placement,
       .model = model,
       .metrics = metrics,
       .panelFactory = panels,
       .outsideClickMonitor = HUDOutsideClickMonitorDependencies::inert(),
       .contentAnimationScheduler = scheduler,
       .actionScheduler = scheduler,
       .localizer = localizer});
  ScriptedBenchmarkTap scripted(preferences, scheduler, scheduler, metrics, &controller);
  if (!scripted.started) {
    state.SkipWithError("the scripted tap did not start");
    return;
  }
  const auto tapOption = [&] {
    scripted.keys.held.set(kLeftOption);
    scripted.system.flagsChanged(kLeftOption);
    scripted.keys.held.reset(kLeftOption);
    scripted.system.flagsChanged(kLeftOption);
    scheduler.advanceBy(50ms);
  };
  for (auto _ : state) {
    tapOption();
    tapOption();
    scheduler.runPending();
    state.PauseTiming();
    controller.hide();
    scheduler.advanceBy(1s);
    state.ResumeTiming();
  }
  const auto& samples = metrics.samples();
  state.counters["firstFrameMicroseconds"] =
      samples.empty() ? 0.0
                      : 1000.0 * std::accumulate(samples.begin(), samples.end(), 0.0) /
                            static_cast<double>(samples.size());
}
BENCHMARK(BM_HUDRecognitionToFirstFrame);

} // namespace
} // namespace quenby
