// Objective-C++: include only from .mm files.
#pragma once

#include "app/menu/MenuBarIconState.hpp"

#import <AppKit/AppKit.h>

namespace quenby {

/// The status item's icon: two template images that the build renders from resources/icons into
/// the application bundle (a keycap with two opposed arrows, and for `attention` the same keycap
/// with a badge in its top right corner), so that the menu bar tints them for its appearance
/// (light, dark, highlighted). Main thread only; each variant is loaded once and kept. An image
/// is nil only in a bundle built without its resources.
class SystemMenuBarStatusImageProvider {
public:
  SystemMenuBarStatusImageProvider();

  [[nodiscard]] NSImage* image(MenuBarIconState state) const {
    return state == MenuBarIconState::attention ? attention_ : normal_;
  }

private:
  NSImage* normal_;
  NSImage* attention_;
};

} // namespace quenby
