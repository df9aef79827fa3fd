// CFPreferences for the Dock's domain ("com.apple.dock") behind the portable Dock reader.
//
// Threading: main thread only; the closures are called by the reader, on the poll and on the
// Dock's notifications.
//
// Lifetime: the copy closure keeps the last value it copied (retained) and what it converted to,
// for as long as the closure lives; every copied value (+1) is handed to ARC at once.
//
// Guarantee: values are read as the Dock itself reads them, through the application search list,
// so a value forced by device management is the one we see. An unchanged value costs one
// synchronisation and one CFEqual: it is converted only when it differs from the last one, and
// the unchanged conversion is handed back shared, not copied, so the reader and the provider see
// the very same items.

#include "shortcuts/dock/macos/SystemDockPreferences.hpp"

#import "base/macos/FoundationPropertyList.h"
#include "shortcuts/dock/SystemDockPreferenceReader.hpp"

#import <CoreFoundation/CoreFoundation.h>
#import <Foundation/Foundation.h>
#include <utility>

namespace quenby {

SystemDockPreferences makeSystemDockPreferences() {
  NSString* domain = foundationString(SystemDockPreferenceReader::kDomain);
  NSString* key = foundationString(SystemDockPreferenceReader::kPersistentAppsKey);
  return {
      .synchronize =
          [domain] { return CFPreferencesAppSynchronize((__bridge CFStringRef)domain) != 0; },
      .copyPersistentApps = [domain, key, lastRaw = id(nil),
                             lastConverted = std::optional<PropertyListValue>()]() mutable
      -> std::optional<PropertyListValue> {
        @autoreleasepool {
          id raw = CFBridgingRelease(
              CFPreferencesCopyAppValue((__bridge CFStringRef)key, (__bridge CFStringRef)domain));
          if (raw == nil) {
            lastRaw = nil;
            lastConverted.reset();
            return std::nullopt;
          }
          if (lastRaw != nil && CFEqual((__bridge CFTypeRef)raw, (__bridge CFTypeRef)lastRaw)) {
            return lastConverted;
          }
          auto converted = propertyListValueFromFoundation(raw);
          lastRaw = raw;
          lastConverted = converted ? std::move(converted).value()
                                    : PropertyListValue(PropertyListValue::Dictionary{});
          return lastConverted;
        }
      },
  };
}

} // namespace quenby
