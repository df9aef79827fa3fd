// The shared application's activation policy. Main thread only (AppKit); no state. Once called,
// the program has no Dock icon and no menu bar of its own; calling it again changes nothing.

#include "app/macos/AccessoryActivationPolicy.hpp"

#import <AppKit/AppKit.h>

namespace quenby {

void AccessoryActivationPolicy::becomeAccessory() {
  [NSApplication.sharedApplication setActivationPolicy:NSApplicationActivationPolicyAccessory];
}

} // namespace quenby
