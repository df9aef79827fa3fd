// NSScreen and NSEvent read at the moment a window is placed. Main thread only; no state.
// Guarantees a snapshot even with no screen attached (no frames, no main frame): the core's
// placement rule decides what that means, in AppKit's bottom-left coordinates as given.

#include "data/macos/SystemWindowPlacementSnapshotProvider.hpp"

#import <AppKit/AppKit.h>

namespace quenby {

namespace {
Rect rect(NSRect frame) {
  return {frame.origin.x, frame.origin.y, frame.size.width, frame.size.height};
}
} // namespace

WindowPlacementSnapshot SystemWindowPlacementSnapshotProvider::snapshot() const {
  @autoreleasepool {
    WindowPlacementSnapshot snapshot;
    for (NSScreen* screen in NSScreen.screens) {
      snapshot.screenFrames.push_back(rect(screen.frame));
    }
    if (NSScreen* mainScreen = NSScreen.mainScreen) {
      snapshot.mainFrame = rect(mainScreen.frame);
    }
    const NSPoint mouse = NSEvent.mouseLocation;
    snapshot.mouseLocation = {mouse.x, mouse.y};
    return snapshot;
  }
}

} // namespace quenby
