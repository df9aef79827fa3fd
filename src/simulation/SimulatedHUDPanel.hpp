#pragma once

#include "base/MainScheduler.hpp"
#include "base/ObservationToken.hpp"
#include "hud/panel/HUDKeyClickTracker.hpp"
#include "hud/panel/KeyboardHUDPanelMaking.hpp"
#include "simulation/ScenarioEventRecorder.hpp"

#include <functional>
#include <optional>

namespace quenby {

/// The HUD's panel on the simulated screen. It appears when presented, its first frame is on
/// screen in the next turn of the main queue, and it reports each appearance, disappearance and
/// change while shown as a `hud` line. Left-button presses and releases on it are hit-tested
/// against the same layout as the AppKit panel's.
class SimulatedHUDPanel final : public KeyboardHUDPanel {
public:
  SimulatedHUDPanel(const KeyboardHUDPanelConfiguration& configuration,
                    const KeyboardHUDViewModel& model,
                    KeyboardHUDPanelMaking::KeyClickHandler onHUDKeyClicked,
                    const ScenarioEventRecorder& recorder, MainScheduler& scheduler,
                    std::function<void()> onDestroyed);
  SimulatedHUDPanel(const SimulatedHUDPanel&) = delete;
  SimulatedHUDPanel& operator=(const SimulatedHUDPanel&) = delete;
  ~SimulatedHUDPanel() override;

  [[nodiscard]] bool isVisible() const override { return visible_; }
  [[nodiscard]] Rect frame() const override;
  void setFrameOrigin(Point origin) override;
  [[nodiscard]] Size contentSize() const override { return contentSize_; }
  void setContentSize(Size size) override;
  [[nodiscard]] double alpha() const override { return alpha_; }
  void setAlpha(double alpha) override;
  void setAppearance(std::optional<KeyboardHUDAppearanceName> appearance) override;
  void present(std::function<void()> onFirstFrame) override;
  void dismiss() override;

  /// The left button goes down or up at a global point on the panel.
  void leftMouseDown(Point point);
  void leftMouseUp(Point point);

private:
  [[nodiscard]] std::optional<HUDKey> keyAt(Point point) const;
  /// Reports the panel once at the end of this turn if it changed while shown.
  void changed();
  void report() const;

  const KeyboardHUDViewModel& model_;
  KeyboardHUDPanelMaking::KeyClickHandler onHUDKeyClicked_;
  const ScenarioEventRecorder& recorder_;
  MainScheduler& scheduler_;
  std::function<void()> onDestroyed_;
  Point origin_;
  Size contentSize_;
  double alpha_ = 1.0;
  std::optional<KeyboardHUDAppearanceName> appearance_;
  bool visible_ = false;
  HUDKeyClickTracker clicks_;
  ObservationToken firstFrame_;
  ObservationToken pendingReport_;
};

/// Makes the one HUD panel of a simulated process and keeps a way to click on it.
class SimulatedHUDPanelFactory final : public KeyboardHUDPanelMaking {
public:
  SimulatedHUDPanelFactory(const ScenarioEventRecorder& recorder, MainScheduler& scheduler)
      : recorder_(recorder), scheduler_(scheduler) {}

  [[nodiscard]] std::unique_ptr<KeyboardHUDPanel>
  makePanel(const KeyboardHUDPanelConfiguration& configuration, KeyboardHUDViewModel& model,
            KeyClickHandler onHUDKeyClicked) override;
  /// The panel while its owner keeps it; null before and after.
  [[nodiscard]] SimulatedHUDPanel* panel() const { return panel_; }

private:
  const ScenarioEventRecorder& recorder_;
  MainScheduler& scheduler_;
  SimulatedHUDPanel* panel_ = nullptr;
};

} // namespace quenby
