#pragma once

#include "base/BasePlatform.hpp"
#include "data/DataAssembly.hpp"
#include "data/DataPlatform.hpp"
#include "hud/HUDPlatform.hpp"
#include "hud/access/KeyboardAccessMonitor.hpp"
#include "hud/feature/HUDFeatureController.hpp"
#include "hud/panel/HUDPerformanceMetrics.hpp"
#include "hud/panel/KeyboardHUDController.hpp"
#include "hud/routing/HUDKeyDownRouter.hpp"
#include "hud/tap/GlobalKeyboardEventTap.hpp"
#include "hud/tap/SystemEventTapPermission.hpp"
#include "hud/view/KeyboardHUDViewModel.hpp"
#include "shortcuts/ShortcutsAssembly.hpp"

namespace quenby {

/// The keyboard HUD's feature objects: the view model and the panel that shows it, the
/// session-wide keyboard tap that recognises the gestures, the routing that decides each key, and
/// the feature switch that decides whether that tap may run. Everything it is given must outlive
/// it.
class HUDAssembly {
public:
  HUDAssembly(const BasePlatform& base, const HUDPlatform& platform,
              const DataPlatform& dataPlatform, DataAssembly& data, ShortcutsAssembly& shortcuts);
  HUDAssembly(const HUDAssembly&) = delete;
  HUDAssembly& operator=(const HUDAssembly&) = delete;
  ~HUDAssembly();

  /// Starts the keyboard tap when the user enabled the HUD and macOS permits it.
  void restoreHUD() { feature_.restore(); }
  void hideHUD() { controller_.hide(); }
  void stopEventTap() {
    feature_.stop();
    keyboardAccess_.stop();
  }

  [[nodiscard]] KeyboardHUDController& controller() { return controller_; }
  [[nodiscard]] const KeyboardHUDViewModel& model() const { return model_; }
  [[nodiscard]] const HUDPerformanceMetrics& metrics() const { return metrics_; }
  [[nodiscard]] GlobalKeyboardEventTap& eventTap() { return eventTap_; }
  [[nodiscard]] SystemEventTapPermission& permission() { return permission_; }
  [[nodiscard]] HUDFeatureController& feature() { return feature_; }
  /// Secure keyboard entry and a stale grant, watched while the tap runs.
  [[nodiscard]] KeyboardAccessMonitor& keyboardAccess() { return keyboardAccess_; }

private:
  KeyboardHUDViewModel model_;
  HUDPerformanceMetrics metrics_;
  KeyboardHUDController controller_;
  HUDKeyDownRouter router_;
  SystemEventTapPermission permission_;
  GlobalKeyboardEventTap eventTap_;
  HUDFeatureController feature_;
  KeyboardAccessMonitor keyboardAccess_;
  ObservationToken featureHealthObservation_;
};

} // namespace quenby
