// Threading: main thread only, as AppKit requires of windows.
//
// Lifetime: made once by SystemShortcutAnimationPanelFactory and held by the panel object the
// controller keeps for the whole run; not released when closed.
//
// Guarantee: showing the panel never activates the application or takes the keyboard from the
// front one; the mouse passes through it; it stays up when the application is deactivated (an
// accessory application is inactive nearly all the time); it shows on every Space and over
// full-screen applications, above normal windows, without an ordering animation; assistive
// technologies do not see it.

#import "ui/animation/macos/NonactivatingShortcutAnimationPanel.h"

#include "base/macos/OverlayPanelStyle.h"

namespace {
// The status-window level: above normal and floating windows, below the menu bar's menus.
constexpr NSWindowLevel kStatusWindowLevel = 25;
} // namespace

@implementation QBNonactivatingShortcutAnimationPanel

- (instancetype)initWithContentSize:(NSSize)contentSize {
  self =
      [super initWithContentRect:NSMakeRect(0, 0, contentSize.width, contentSize.height)
                       styleMask:NSWindowStyleMaskBorderless | NSWindowStyleMaskNonactivatingPanel
                         backing:NSBackingStoreBuffered
                           defer:NO];
  if (self != nil) {
    self.opaque = NO;
    self.backgroundColor = NSColor.clearColor;
    quenby::applyOverlayPanelStyle(self);
    self.ignoresMouseEvents = YES;
    self.level = kStatusWindowLevel;
    self.collectionBehavior = NSWindowCollectionBehaviorCanJoinAllSpaces |
                              NSWindowCollectionBehaviorFullScreenAuxiliary |
                              NSWindowCollectionBehaviorIgnoresCycle;
  }
  return self;
}

- (BOOL)canBecomeKeyWindow {
  return NO;
}

- (BOOL)canBecomeMainWindow {
  return NO;
}

- (BOOL)isAccessibilityElement {
  return NO;
}

@end
