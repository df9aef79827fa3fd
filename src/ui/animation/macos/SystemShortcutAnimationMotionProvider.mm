// Reads NSWorkspace's reduce-motion flag at each presentation. Main thread only; no state, so it
// lives as long as whoever holds it. Guarantees the setting as it stands now: AppKit keeps the
// flag current, so a change in System Settings applies from the next shortcut on.

#include "ui/animation/macos/SystemShortcutAnimationMotionProvider.hpp"

#import <AppKit/AppKit.h>

namespace quenby {

bool SystemShortcutAnimationMotionProvider::prefersReducedMotion() const {
  return NSWorkspace.sharedWorkspace.accessibilityDisplayShouldReduceMotion;
}

} // namespace quenby
