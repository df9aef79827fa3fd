// NSScreen and NSEvent read at the moment a shortcut is accepted. Main thread only; no state.
// Guarantees the screens in AppKit's order, in its bottom-left global coordinates as given, with
// at most one marked main; an empty list with no screen attached. Choosing among them is the
// core's decision.

#include "ui/animation/macos/SystemShortcutAnimationScreenProvider.hpp"

#import <AppKit/AppKit.h>

namespace quenby {

namespace {
Rect rect(NSRect frame) {
  return {frame.origin.x, frame.origin.y, frame.size.width, frame.size.height};
}
} // namespace

std::vector<ShortcutAnimationScreen> SystemShortcutAnimationScreenProvider::screens() const {
  @autoreleasepool {
    std::vector<ShortcutAnimationScreen> screens;
    NSScreen* mainScreen = NSScreen.mainScreen;
    for (NSScreen* screen in NSScreen.screens) {
      screens.push_back({.frame = rect(screen.frame),
                         .visibleFrame = rect(screen.visibleFrame),
                         .isMain = screen == mainScreen});
    }
    return screens;
  }
}

Point SystemShortcutAnimationScreenProvider::mouseLocation() const {
  const NSPoint mouse = NSEvent.mouseLocation;
  return {mouse.x, mouse.y};
}

} // namespace quenby
