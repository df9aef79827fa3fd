// Threading: main thread only.
//
// Lifetime: the returned panel owns the window and its content view; the model must outlive
// both. The click handler is the caller's, already holding its owner weakly.
//
// Guarantee: the window is made hidden and set up once, from the configuration: it never
// activates the application, never becomes key or main, stays up when the application is
// deactivated (an accessory application is inactive nearly all the time), and appears on the
// active Space and over full-screen applications without animation.

#include "hud/panel/macos/SystemKeyboardHUDPanelFactory.hpp"

#include "base/macos/OverlayPanelStyle.h"
#import "hud/panel/macos/SystemKeyboardHUDPanel.h"

#include <utility>

namespace quenby {

std::unique_ptr<KeyboardHUDPanel>
SystemKeyboardHUDPanelFactory::makePanel(const KeyboardHUDPanelConfiguration& configuration,
                                         KeyboardHUDViewModel& model,
                                         KeyClickHandler onHUDKeyClicked) {
  QBNonactivatingKeyboardHUDPanel* panel =
      [[QBNonactivatingKeyboardHUDPanel alloc] initWithConfiguration:configuration model:model];

  QBKeyboardHUDHostingView* hostingView =
      [[QBKeyboardHUDHostingView alloc] initWithModel:model
                              acceptsFirstMouseEvents:configuration.acceptsFirstMouse];
  hostingView.frame =
      NSMakeRect(0, 0, configuration.contentSize.width, configuration.contentSize.height);
  hostingView.autoresizingMask = NSViewWidthSizable | NSViewHeightSizable;
  hostingView.wantsLayer = YES;
  panel.contentView = hostingView;

  panel.appearance = systemAppearance(configuration.appearanceName);
  panel.opaque = configuration.isOpaque;
  panel.backgroundColor =
      configuration.backgroundIsClear ? NSColor.clearColor : NSColor.windowBackgroundColor;
  panel.ignoresMouseEvents = configuration.ignoresMouseEvents;
  panel.acceptsMouseMovedEvents = !configuration.ignoresMouseEvents;
  panel.collectionBehavior =
      static_cast<NSWindowCollectionBehavior>(configuration.collectionBehavior);
  panel.level = static_cast<NSWindowLevel>(configuration.level);
  applyOverlayPanelStyle(panel);

  [panel setHUDKeyClickHandler:std::move(onHUDKeyClicked)];
  return std::make_unique<SystemKeyboardHUDPanel>(panel, hostingView);
}

} // namespace quenby
