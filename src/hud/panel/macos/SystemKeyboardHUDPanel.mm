// Threading: main thread only, as AppKit requires of windows and views.
//
// Lifetime: holds the panel and its content view strongly for as long as the controller keeps
// this object (the whole run); the panel is not released when closed. The first-frame block
// holds the panel weakly, so a panel gone by then calls nothing.
//
// Guarantee: presenting orders the panel front without activating the application, inside one
// Core Animation transaction with implicit animations off, after a synchronous layout and
// display; the first-frame callback runs only once that frame is committed and only if the panel
// is still visible then.

#import "hud/panel/macos/SystemKeyboardHUDPanel.h"

#import <QuartzCore/QuartzCore.h>
#include <utility>

namespace quenby {

SystemKeyboardHUDPanel::SystemKeyboardHUDPanel(QBNonactivatingKeyboardHUDPanel* panel,
                                               QBKeyboardHUDHostingView* hostingView)
    : panel_(panel), hostingView_(hostingView) {}

SystemKeyboardHUDPanel::~SystemKeyboardHUDPanel() {
  [panel_ setHUDKeyClickHandler:{}];
  [panel_ orderOut:nil];
}

bool SystemKeyboardHUDPanel::isVisible() const { return panel_.visible; }

Rect SystemKeyboardHUDPanel::frame() const {
  const NSRect frame = panel_.frame;
  return {frame.origin.x, frame.origin.y, frame.size.width, frame.size.height};
}

void SystemKeyboardHUDPanel::setFrameOrigin(Point origin) {
  [panel_ setFrameOrigin:NSPoint{origin.x, origin.y}];
}

Size SystemKeyboardHUDPanel::contentSize() const {
  const NSSize size = hostingView_.frame.size;
  return {size.width, size.height};
}

void SystemKeyboardHUDPanel::setContentSize(Size size) {
  [panel_ setContentSize:NSSize{size.width, size.height}];
  hostingView_.needsLayout = YES;
  [hostingView_ layoutSubtreeIfNeeded];
}

double SystemKeyboardHUDPanel::alpha() const { return panel_.alphaValue; }

void SystemKeyboardHUDPanel::setAlpha(double alpha) { panel_.alphaValue = alpha; }

void SystemKeyboardHUDPanel::setAppearance(std::optional<KeyboardHUDAppearanceName> appearance) {
  panel_.appearance = systemAppearance(appearance);
}

void SystemKeyboardHUDPanel::present(std::function<void()> onFirstFrame) {
  __weak QBNonactivatingKeyboardHUDPanel* weakPanel = panel_;
  const std::function<void()> callback = std::move(onFirstFrame);
  [CATransaction begin];
  [CATransaction setDisableActions:YES];
  [CATransaction setCompletionBlock:^{
    QBNonactivatingKeyboardHUDPanel* panel = weakPanel;
    if (panel != nil && panel.visible && callback) {
      callback();
    }
  }];
  hostingView_.needsLayout = YES;
  [hostingView_ layoutSubtreeIfNeeded];
  hostingView_.needsDisplay = YES;
  [hostingView_.layer setNeedsDisplay];
  [panel_ orderFrontRegardless];
  [panel_ displayIfNeeded];
  [hostingView_.layer displayIfNeeded];
  [CATransaction commit];
}

void SystemKeyboardHUDPanel::dismiss() {
  [panel_ forgetPressedKey];
  [panel_ orderOut:nil];
}

NSAppearance* _Nullable systemAppearance(std::optional<KeyboardHUDAppearanceName> appearance) {
  if (!appearance) {
    return nil;
  }
  switch (*appearance) {
  case KeyboardHUDAppearanceName::aqua:
    return [NSAppearance appearanceNamed:NSAppearanceNameAqua];
  case KeyboardHUDAppearanceName::darkAqua:
    return [NSAppearance appearanceNamed:NSAppearanceNameDarkAqua];
  }
  return nil;
}

} // namespace quenby
