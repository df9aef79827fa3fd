// Styles an overlay panel. Main thread only, like every AppKit window call; keeps nothing.

#include "base/macos/OverlayPanelStyle.h"

namespace quenby {

void applyOverlayPanelStyle(NSPanel* panel) {
  panel.hasShadow = NO;
  panel.hidesOnDeactivate = NO;
  panel.becomesKeyOnlyIfNeeded = YES;
  panel.movable = NO;
  panel.releasedWhenClosed = NO;
  panel.excludedFromWindowsMenu = YES;
  panel.animationBehavior = NSWindowAnimationBehaviorNone;
}

} // namespace quenby
