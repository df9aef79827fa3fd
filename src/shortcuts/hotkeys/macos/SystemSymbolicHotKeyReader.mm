// CFPreferences for the system's keyboard shortcut table ("com.apple.symbolichotkeys").
//
// Threading: main thread only; called when the digit shortcuts are registered.
//
// Lifetime: holds nothing between calls; the copied value (+1) is handed to ARC at once.
//
// Guarantee: the table is read as the system reads it, after synchronising, so a change made in
// System Settings since the last read is seen. Only copies and converts: every decision about
// the table is the core's. A value that cannot be converted reads as no table.

#include "shortcuts/hotkeys/macos/SystemSymbolicHotKeyReader.hpp"

#import "base/macos/FoundationPropertyList.h"

#import <CoreFoundation/CoreFoundation.h>
#import <Foundation/Foundation.h>
#include <utility>

namespace quenby {

std::optional<PropertyListValue> SystemSymbolicHotKeyReader::copySymbolicHotKeys() {
  @autoreleasepool {
    NSString* domain = foundationString(kDomain);
    NSString* key = foundationString(kKey);
    CFPreferencesAppSynchronize((__bridge CFStringRef)domain);
    id raw = CFBridgingRelease(
        CFPreferencesCopyAppValue((__bridge CFStringRef)key, (__bridge CFStringRef)domain));
    if (raw == nil) {
      return std::nullopt;
    }
    auto converted = propertyListValueFromFoundation(raw);
    if (!converted) {
      return std::nullopt;
    }
    return std::move(converted).value();
  }
}

} // namespace quenby
