// CFPropertyListCreateWithData behind the core's decoder. Any thread; no state. The decoded
// object (+1) and the error (+1) are handed to ARC at once, so every path releases them. Any
// byte sequence yields a value or a typed error; nothing is thrown.

#include "base/macos/CoreFoundationPropertyListDecoder.hpp"

#import "base/macos/FoundationPropertyList.h"

#import <CoreFoundation/CoreFoundation.h>
#import <Foundation/Foundation.h>
#include <string>

namespace quenby {

Expected<PropertyListValue, PropertyListDecodingError>
CoreFoundationPropertyListDecoder::decode(std::span<const std::uint8_t> bytes) const {
  using Error = PropertyListDecodingError;
  if (bytes.empty()) {
    return Unexpected{Error{Error::Kind::empty, "there are no bytes to decode"}};
  }
  @autoreleasepool {
    NSData* data = [NSData dataWithBytes:bytes.data() length:bytes.size()];
    CFErrorRef failure = nullptr;
    id root = CFBridgingRelease(
        CFPropertyListCreateWithData(kCFAllocatorDefault, (__bridge CFDataRef)data,
                                     kCFPropertyListImmutable, nullptr, &failure));
    NSError* error = CFBridgingRelease(failure);
    if (root == nil) {
      std::string reason = "the bytes are not a property list";
      if (error != nil) {
        reason += ": " + utf8String(error.localizedDescription).value_or("");
      }
      return Unexpected{Error{Error::Kind::malformed, std::move(reason)}};
    }
    return propertyListValueFromFoundation(root);
  }
}

} // namespace quenby
