// The standard user defaults behind the core's key-value store. Main thread only (the store is
// used from the one feature thread; NSUserDefaults itself would allow more). Holds no state: every
// call goes to +standardUserDefaults, which lives as long as the process. A key or value that
// cannot cross into Foundation (text that is not UTF-8) reads as absent and is not written; the
// core reads back whatever it must be sure was stored.

#include "base/macos/UserDefaultsKeyValueStore.hpp"

#import "base/macos/FoundationPropertyList.h"

namespace quenby {

std::optional<PropertyListValue> UserDefaultsKeyValueStore::object(std::string_view key) const {
  @autoreleasepool {
    NSString* name = foundationString(key);
    if (name == nil) {
      return std::nullopt;
    }
    id stored = [NSUserDefaults.standardUserDefaults objectForKey:name];
    if (stored == nil) {
      return std::nullopt;
    }
    auto value = propertyListValueFromFoundation(stored);
    if (!value) {
      return std::nullopt;
    }
    return std::move(value).value();
  }
}

void UserDefaultsKeyValueStore::set(std::string_view key, PropertyListValue value) {
  @autoreleasepool {
    NSString* name = foundationString(key);
    id object = foundationObjectFromPropertyListValue(value);
    if (name == nil || object == nil) {
      return;
    }
    [NSUserDefaults.standardUserDefaults setObject:object forKey:name];
  }
}

void UserDefaultsKeyValueStore::remove(std::string_view key) {
  @autoreleasepool {
    NSString* name = foundationString(key);
    if (name == nil) {
      return;
    }
    [NSUserDefaults.standardUserDefaults removeObjectForKey:name];
  }
}

} // namespace quenby
