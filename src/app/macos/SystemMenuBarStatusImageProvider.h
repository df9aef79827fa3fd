// Objective-C++: include only from .mm files.
#pragma once

#include "app/menu/MenuBarIconState.hpp"

#import <AppKit/AppKit.h>

namespace quenby {

/// The status item's icon, drawn in code as a template image so that the menu bar tints it for
/// its appearance (light, dark, highlighted): a keycap outline with a dot, and for `attention`
/// the same keycap with a badge in its top right corner. Main thread only; each variant is made
/// once and kept.
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
