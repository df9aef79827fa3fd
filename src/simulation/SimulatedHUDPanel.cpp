#include "simulation/SimulatedHUDPanel.hpp"

#include "hud/view/KeyboardHUDLayout.hpp"

namespace quenby {

SimulatedHUDPanel::SimulatedHUDPanel(const KeyboardHUDPanelConfiguration& configuration,
                                     const KeyboardHUDViewModel& model,
                                     KeyboardHUDPanelMaking::KeyClickHandler onHUDKeyClicked,
                                     const ScenarioEventRecorder& recorder,
                                     MainScheduler& scheduler, std::function<void()> onDestroyed)
    : model_(model), onHUDKeyClicked_(std::move(onHUDKeyClicked)), recorder_(recorder),
      scheduler_(scheduler), onDestroyed_(std::move(onDestroyed)),
      contentSize_(configuration.contentSize), appearance_(configuration.appearanceName) {}

SimulatedHUDPanel::~SimulatedHUDPanel() { onDestroyed_(); }

Rect SimulatedHUDPanel::frame() const {
  return {origin_.x, origin_.y, contentSize_.width, contentSize_.height};
}

void SimulatedHUDPanel::setFrameOrigin(Point origin) {
  if (origin != origin_) {
    origin_ = origin;
    changed();
  }
}

void SimulatedHUDPanel::setContentSize(Size size) {
  if (size != contentSize_) {
    contentSize_ = size;
    changed();
  }
}

void SimulatedHUDPanel::setAlpha(double alpha) {
  if (alpha != alpha_) {
    alpha_ = alpha;
    changed();
  }
}

void SimulatedHUDPanel::setAppearance(std::optional<KeyboardHUDAppearanceName> appearance) {
  if (appearance != appearance_) {
    appearance_ = appearance;
    changed();
  }
}

void SimulatedHUDPanel::present(std::function<void()> onFirstFrame) {
  pendingReport_.cancel();
  visible_ = true;
  report();
  firstFrame_ = scheduler_.post(std::move(onFirstFrame));
}

void SimulatedHUDPanel::dismiss() {
  clicks_.reset();
  pendingReport_.cancel();
  if (visible_) {
    visible_ = false;
    report();
  }
}

void SimulatedHUDPanel::leftMouseDown(Point point) { clicks_.press(keyAt(point)); }

void SimulatedHUDPanel::leftMouseUp(Point point) {
  if (const auto key = clicks_.release(keyAt(point))) {
    onHUDKeyClicked_(*key);
  }
}

std::optional<HUDKey> SimulatedHUDPanel::keyAt(Point point) const {
  // Screen space grows upwards; the layout's frames grow downwards from the content's top.
  const Rect panel = frame();
  return KeyboardHUDLayout::hitTest({point.x - panel.x, panel.y + panel.height - point.y},
                                    KeyboardHUDLayout::metrics(model_.hudSize()));
}

void SimulatedHUDPanel::changed() {
  if (visible_ && pendingReport_.isCancelled()) {
    pendingReport_ = scheduler_.post([this] {
      pendingReport_ = ObservationToken();
      report();
    });
  }
}

void SimulatedHUDPanel::report() const {
  if (!visible_) {
    recorder_.emit("hud", {{"visible", false}});
    return;
  }
  const Rect panel = frame();
  const char* appearance = !appearance_                                      ? "system"
                           : *appearance_ == KeyboardHUDAppearanceName::aqua ? "light"
                                                                             : "dark";
  recorder_.emit("hud", {{"visible", true},
                         {"frame", {panel.x, panel.y, panel.width, panel.height}},
                         {"alpha", alpha_},
                         {"appearance", appearance}});
}

std::unique_ptr<KeyboardHUDPanel>
SimulatedHUDPanelFactory::makePanel(const KeyboardHUDPanelConfiguration& configuration,
                                    KeyboardHUDViewModel& model, KeyClickHandler onHUDKeyClicked) {
  auto panel =
      std::make_unique<SimulatedHUDPanel>(configuration, model, std::move(onHUDKeyClicked),
                                          recorder_, scheduler_, [this] { panel_ = nullptr; });
  panel_ = panel.get();
  return panel;
}

} // namespace quenby
