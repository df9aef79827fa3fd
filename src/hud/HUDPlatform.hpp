#pragma once

#include "hud/access/KeyboardAccessProbing.hpp"
#include "hud/gestures/SystemModifierKeyStateReader.hpp"
#include "hud/panel/HUDDigitInfoPresenting.hpp"
#include "hud/panel/HUDOutsideClickMonitorDependencies.hpp"
#include "hud/panel/HUDPresentationSignposting.hpp"
#include "hud/panel/KeyboardHUDPanelMaking.hpp"
#include "hud/routing/KeyboardCharacterTranslating.hpp"
#include "hud/tap/SystemEventTapPermission.hpp"
#include "hud/tap/SystemKeyboardEventTapDependencies.hpp"

#include <memory>

namespace quenby {

/// What the keyboard HUD needs from the platform: the session-wide keyboard tap and its
/// permissions, the physical state of the modifier keys, what each key types under the current
/// layout, the panel with its mouse monitors, the explanation of a digit that leads nowhere, the
/// presentation signposts, and the system's view of who may read the keyboard.
struct HUDPlatform {
  SystemKeyboardEventTapDependencies eventTap = SystemKeyboardEventTapDependencies::inert();
  SystemEventTapPermission::Operations permission = SystemEventTapPermission::Operations::inert();
  std::shared_ptr<SystemModifierKeyStateReader> keyStateReader =
      std::make_shared<InertModifierKeyStateReader>();
  std::shared_ptr<KeyboardHUDPanelMaking> panelFactory =
      std::make_shared<InertKeyboardHUDPanelFactory>();
  HUDOutsideClickMonitorDependencies outsideClicks = HUDOutsideClickMonitorDependencies::inert();
  std::shared_ptr<HUDPresentationSignposting> signposter =
      std::make_shared<InertHUDPresentationSignposter>();
  std::shared_ptr<KeyboardCharacterTranslating> characterTranslator =
      std::make_shared<InertKeyboardCharacterTranslator>();
  std::shared_ptr<HUDDigitInfoPresenting> digitInfo =
      std::make_shared<InertHUDDigitInfoPresenter>();
  std::shared_ptr<KeyboardAccessProbing> keyboardAccess =
      std::make_shared<InertKeyboardAccessProbe>();

  /// No tap can be created, nothing is granted, no key is held, keys type nothing (US letter
  /// positions apply) and no panel or explanation ever appears.
  [[nodiscard]] static HUDPlatform inert() { return {}; }
};

} // namespace quenby
