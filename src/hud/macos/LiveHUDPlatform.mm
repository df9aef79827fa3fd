// Builds the HUD's system adapters. Main thread only; each adapter is shared with the runtime
// graph and lives as long as it does. Nothing here touches the system until the graph asks: the
// tap is created when the HUD feature starts it, the panel when the controller is built, the
// keyboard layout copied at the first key that needs it.

#include "hud/macos/LiveHUDPlatform.hpp"

#include "hud/access/macos/SystemKeyboardAccessProbe.hpp"
#include "hud/gestures/macos/EventSourceModifierKeyStateReader.hpp"
#include "hud/panel/macos/AlertHUDDigitInfoPresenter.hpp"
#include "hud/panel/macos/LiveHUDOutsideClickMonitorDependencies.hpp"
#include "hud/panel/macos/OSHUDPresentationSignposter.hpp"
#include "hud/panel/macos/SystemKeyboardHUDPanelFactory.hpp"
#include "hud/routing/macos/CurrentInputSourceCharacterTranslator.hpp"
#include "hud/tap/macos/LiveEventTapPermissionOperations.hpp"
#include "hud/tap/macos/LiveKeyboardEventTapDependencies.hpp"

#include <memory>

namespace quenby {

HUDPlatform makeLiveHUDPlatform() {
  return {
      .eventTap = makeLiveKeyboardEventTapDependencies(),
      .permission = makeLiveEventTapPermissionOperations(),
      .keyStateReader = std::make_shared<EventSourceModifierKeyStateReader>(),
      .panelFactory = std::make_shared<SystemKeyboardHUDPanelFactory>(),
      .outsideClicks = makeLiveHUDOutsideClickMonitorDependencies(),
      .signposter = std::make_shared<OSHUDPresentationSignposter>(),
      .characterTranslator = std::make_shared<CurrentInputSourceCharacterTranslator>(),
      .digitInfo = std::make_shared<AlertHUDDigitInfoPresenter>(),
      .keyboardAccess = std::make_shared<SystemKeyboardAccessProbe>(),
  };
}

} // namespace quenby
