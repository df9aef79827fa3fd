// Reads the shared workspace's front application at the moment of asking. Main thread only (the
// workspace updates the property there); holds no state, so it is valid for as long as it exists.

#include "shortcuts/switching/macos/WorkspaceFrontmostApplicationProvider.hpp"

#import "base/macos/FoundationPropertyList.h"

#import <AppKit/AppKit.h>

namespace quenby {

std::optional<std::string>
WorkspaceFrontmostApplicationProvider::frontmostBundleIdentifier() const {
  @autoreleasepool {
    NSString* identifier = NSWorkspace.sharedWorkspace.frontmostApplication.bundleIdentifier;
    if (identifier == nil) {
      return std::nullopt;
    }
    return utf8String(identifier);
  }
}

} // namespace quenby
