// CFPreferences for the Dock's domain ("com.apple.dock", current user, any host) behind the
// portable Dock reader. Main thread only. The copied value (+1) is handed to ARC at once.

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
          [domain] {
            return CFPreferencesSynchronize((__bridge CFStringRef)domain, kCFPreferencesCurrentUser,
                                            kCFPreferencesAnyHost) != 0;
          },
      .copyPersistentApps = [domain, key]() -> std::optional<PropertyListValue> {
        @autoreleasepool {
          id value = CFBridgingRelease(
              CFPreferencesCopyValue((__bridge CFStringRef)key, (__bridge CFStringRef)domain,
                                     kCFPreferencesCurrentUser, kCFPreferencesAnyHost));
          if (value == nil) {
            return std::nullopt;
          }
          auto converted = propertyListValueFromFoundation(value);
          if (!converted) {
            return PropertyListValue(PropertyListValue::Dictionary{});
          }
          return std::move(converted).value();
        }
      },
  };
}

} // namespace quenby
