// Objective-C++: include only from .mm files.
#pragma once

#include "base/PropertyListDecoding.hpp"

#import <Foundation/Foundation.h>
#include <optional>
#include <string>
#include <string_view>

namespace quenby {

/// Converts a Foundation property-list object (what the user defaults, CoreFoundation
/// preferences and CoreFoundation's decoder hand out) into the core's value. An NSNumber is a
/// Boolean exactly when it is a CFBoolean; otherwise an integer when it holds a C integer type
/// ("c" included: a char that is not a CFBoolean is a number), otherwise a real. Nesting deeper
/// than `PropertyListDecoding::kMaximumDepth` containers is refused as `tooDeep`; an object of
/// no property-list kind, or a string that is not valid Unicode, as `malformed`.
[[nodiscard]] Expected<PropertyListValue, PropertyListDecodingError>
    propertyListValueFromFoundation(id _Nullable object);

/// The Foundation object for `value`: Booleans become CFBooleans, integers and reals NSNumbers
/// of their kind, dates NSDates. Nil when a string in it is not valid UTF-8 (Foundation
/// strings cannot hold it).
[[nodiscard]] id _Nullable foundationObjectFromPropertyListValue(const PropertyListValue& value);

/// Nil when `text` is not valid UTF-8.
[[nodiscard]] NSString* _Nullable foundationString(std::string_view text);

/// Absent when the string holds unpaired surrogates, which UTF-8 cannot carry.
[[nodiscard]] std::optional<std::string> utf8String(NSString* _Nonnull string);

} // namespace quenby
