// Objective-C++: include only from .mm files.
#pragma once

#import <AppKit/AppKit.h>

namespace quenby {

/// What every overlay panel of the program shares: it never becomes key unless a control in it
/// asks, never moves, casts no shadow of its own, stays on screen when the application is
/// deactivated (an accessory application almost always is), is kept after ordering out, stays
/// out of the Window menu and appears without the system's window animation.
void applyOverlayPanelStyle(NSPanel* _Nonnull panel);

} // namespace quenby
