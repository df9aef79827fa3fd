// The shared application's activation policy. Main thread only (AppKit); no state.

#include "app/macos/AccessoryActivationPolicy.hpp"

#import <AppKit/AppKit.h>

namespace quenby {

void AccessoryActivationPolicy::becomeAccessory() {
  [NSApplication.sharedApplication setActivationPolicy:NSApplicationActivationPolicyAccessory];
}

} // namespace quenby
