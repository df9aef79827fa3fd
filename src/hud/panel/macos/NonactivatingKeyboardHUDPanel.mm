// Threading: main thread only; AppKit delivers every event here on the main thread.
//
// Lifetime: made once with the panel controller and kept for the whole run. It reads the view
// model (for the HUD's scale) by reference; the controller's owner keeps the model alive for
// longer than the panel.
//
// Guarantee: the panel never becomes key or main, so showing it or clicking it never takes the
// keyboard from the front application. A key click is a left press and release over the same
// key (the decision is `HUDKeyClickTracker`'s); a drag that began on a key never reaches the
// content view. Every other event, and every event while no handler is set, passes unchanged.

#import "hud/panel/macos/NonactivatingKeyboardHUDPanel.h"

#include "hud/panel/HUDKeyClickTracker.hpp"
#include "hud/view/KeyboardHUDLayout.hpp"

#include <optional>
#include <utility>

@implementation QBNonactivatingKeyboardHUDPanel {
  const quenby::KeyboardHUDViewModel* _model;
  quenby::KeyboardHUDPanelMaking::KeyClickHandler _onHUDKeyClicked;
  quenby::HUDKeyClickTracker _clicks;
  BOOL _canBecomeKey;
  BOOL _canBecomeMain;
}

- (instancetype)initWithConfiguration:(const quenby::KeyboardHUDPanelConfiguration&)configuration
                                model:(const quenby::KeyboardHUDViewModel&)model {
  const NSRect contentRect =
      NSMakeRect(0, 0, configuration.contentSize.width, configuration.contentSize.height);
  self = [super initWithContentRect:contentRect
                          styleMask:static_cast<NSWindowStyleMask>(configuration.styleMask)
                            backing:NSBackingStoreBuffered
                              defer:NO];
  if (self != nil) {
    _model = &model;
    _canBecomeKey = configuration.canBecomeKey;
    _canBecomeMain = configuration.canBecomeMain;
  }
  return self;
}

- (BOOL)canBecomeKeyWindow {
  return _canBecomeKey;
}

- (BOOL)canBecomeMainWindow {
  return _canBecomeMain;
}

- (void)setHUDKeyClickHandler:(quenby::KeyboardHUDPanelMaking::KeyClickHandler)handler {
  _onHUDKeyClicked = std::move(handler);
}

- (void)forgetPressedKey {
  _clicks.reset();
}

- (std::optional<quenby::HUDKey>)keyUnderEvent:(NSEvent*)event {
  NSView* content = self.contentView;
  if (content == nil) {
    return std::nullopt;
  }
  // The layout's frames have their origin at the top left.
  const NSPoint local = [content convertPoint:event.locationInWindow fromView:nil];
  const CGFloat y = content.flipped ? local.y : content.bounds.size.height - local.y;
  return quenby::KeyboardHUDLayout::hitTest({local.x, y},
                                            quenby::KeyboardHUDLayout::metrics(_model->hudSize()));
}

- (void)sendEvent:(NSEvent*)event {
  if (!_onHUDKeyClicked) {
    [super sendEvent:event];
    return;
  }
  switch (event.type) {
  case NSEventTypeLeftMouseDown:
    _clicks.press([self keyUnderEvent:event]);
    break;
  case NSEventTypeLeftMouseDragged:
    if (_clicks.drag()) {
      return;
    }
    break;
  case NSEventTypeLeftMouseUp:
    if (const auto clicked = _clicks.release([self keyUnderEvent:event])) {
      _onHUDKeyClicked(*clicked);
    }
    break;
  default:
    break;
  }
  [super sendEvent:event];
}

@end
