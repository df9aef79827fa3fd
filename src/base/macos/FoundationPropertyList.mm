// Conversions between Foundation's property-list objects and the core's values. Pure functions:
// any thread, no state; the objects returned are autoreleased in the caller's pool.

#import "base/macos/FoundationPropertyList.h"

#include <cstdint>
#include <utility>

namespace quenby {
namespace {

using Error = PropertyListDecodingError;

Error malformed(std::string message) { return {Error::Kind::malformed, std::move(message)}; }

Error tooDeep() {
  return {Error::Kind::tooDeep, "the property list nests deeper than " +
                                    std::to_string(PropertyListDecoding::kMaximumDepth) +
                                    " levels"};
}

// The Objective-C type encodings of the C integer types, char and unsigned char included.
bool isIntegerEncoding(const char* encoding) {
  if (encoding == nullptr || encoding[0] == '\0' || encoding[1] != '\0') {
    return false;
  }
  return std::string_view("cCsSiIlLqQ").find(encoding[0]) != std::string_view::npos;
}

PropertyListValue numberValue(NSNumber* number) {
  if (CFGetTypeID((__bridge CFTypeRef)number) == CFBooleanGetTypeID()) {
    return PropertyListValue(number.boolValue != NO);
  }
  if (isIntegerEncoding(number.objCType)) {
    return PropertyListValue(static_cast<std::int64_t>(number.longLongValue));
  }
  return PropertyListValue(number.doubleValue);
}

PropertyListValue dataValue(NSData* data) {
  const auto* begin = static_cast<const std::uint8_t*>(data.bytes);
  return PropertyListValue(PropertyListValue::Data(begin, begin + data.length));
}

// `depth` counts the containers around `object`.
Expected<PropertyListValue, Error> convert(id object, int depth) {
  if ([object isKindOfClass:[NSString class]]) {
    auto text = utf8String(object);
    if (!text) {
      return Unexpected{malformed("a string holds characters that UTF-8 cannot carry")};
    }
    return PropertyListValue(std::move(*text));
  }
  if ([object isKindOfClass:[NSNumber class]]) {
    return numberValue(object);
  }
  if ([object isKindOfClass:[NSData class]]) {
    return dataValue(object);
  }
  if ([object isKindOfClass:[NSDate class]]) {
    NSDate* date = object;
    return PropertyListValue(PropertyListDate{date.timeIntervalSinceReferenceDate});
  }
  if ([object isKindOfClass:[NSArray class]]) {
    if (depth + 1 > PropertyListDecoding::kMaximumDepth) {
      return Unexpected{tooDeep()};
    }
    NSArray* array = object;
    PropertyListValue::Array elements;
    elements.reserve(array.count);
    for (id element in array) {
      auto converted = convert(element, depth + 1);
      if (!converted) {
        return Unexpected{converted.error()};
      }
      elements.push_back(std::move(converted).value());
    }
    return PropertyListValue(std::move(elements));
  }
  if ([object isKindOfClass:[NSDictionary class]]) {
    if (depth + 1 > PropertyListDecoding::kMaximumDepth) {
      return Unexpected{tooDeep()};
    }
    NSDictionary* dictionary = object;
    PropertyListValue::Dictionary entries;
    for (id key in dictionary) {
      if (![key isKindOfClass:[NSString class]]) {
        return Unexpected{malformed("a dictionary key is not a string")};
      }
      auto name = utf8String(key);
      if (!name) {
        return Unexpected{malformed("a dictionary key holds characters that UTF-8 cannot carry")};
      }
      auto converted = convert([dictionary objectForKey:key], depth + 1);
      if (!converted) {
        return Unexpected{converted.error()};
      }
      entries.insert_or_assign(std::move(*name), std::move(converted).value());
    }
    return PropertyListValue(std::move(entries));
  }
  if (object == nil) {
    return Unexpected{malformed("there is no value")};
  }
  return Unexpected{malformed("an object is of no property-list kind")};
}

} // namespace

Expected<PropertyListValue, PropertyListDecodingError>
propertyListValueFromFoundation(id _Nullable object) {
  return convert(object, 0);
}

id _Nullable foundationObjectFromPropertyListValue(const PropertyListValue& value) {
  switch (value.kind()) {
  case PropertyListValue::Kind::boolean:
    return [NSNumber numberWithBool:*value.boolean() ? YES : NO];
  case PropertyListValue::Kind::integer:
    return [NSNumber numberWithLongLong:*value.integer()];
  case PropertyListValue::Kind::real:
    return [NSNumber numberWithDouble:*value.real()];
  case PropertyListValue::Kind::string:
    return foundationString(*value.string());
  case PropertyListValue::Kind::data: {
    const PropertyListValue::Data& bytes = *value.data();
    return [NSData dataWithBytes:bytes.data() length:bytes.size()];
  }
  case PropertyListValue::Kind::date:
    return [NSDate dateWithTimeIntervalSinceReferenceDate:value.date()->secondsSinceReferenceDate];
  case PropertyListValue::Kind::array: {
    const PropertyListValue::Array& elements = *value.array();
    NSMutableArray* array = [NSMutableArray arrayWithCapacity:elements.size()];
    for (const PropertyListValue& element : elements) {
      id object = foundationObjectFromPropertyListValue(element);
      if (object == nil) {
        return nil;
      }
      [array addObject:object];
    }
    return array;
  }
  case PropertyListValue::Kind::dictionary: {
    const PropertyListValue::Dictionary& entries = *value.dictionary();
    NSMutableDictionary<NSString*, id>* dictionary =
        [NSMutableDictionary dictionaryWithCapacity:entries.size()];
    for (const auto& [name, entry] : entries) {
      NSString* key = foundationString(name);
      id object = foundationObjectFromPropertyListValue(entry);
      if (key == nil || object == nil) {
        return nil;
      }
      [dictionary setObject:object forKey:key];
    }
    return dictionary;
  }
  }
  return nil;
}

NSString* _Nullable foundationString(std::string_view text) {
  if (text.empty()) {
    return @"";
  }
  return [[NSString alloc] initWithBytes:text.data()
                                  length:text.size()
                                encoding:NSUTF8StringEncoding];
}

std::optional<std::string> utf8String(NSString* _Nonnull string) {
  const char* bytes = string.UTF8String;
  if (bytes == nullptr) {
    return std::nullopt;
  }
  return std::string(bytes, [string lengthOfBytesUsingEncoding:NSUTF8StringEncoding]);
}

} // namespace quenby
