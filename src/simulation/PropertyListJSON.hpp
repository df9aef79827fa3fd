#pragma once

#include "base/PropertyListValue.hpp"

#include <nlohmann/json.hpp>

namespace quenby {

/// A property-list value as the simulation prints it: strings, numbers and Booleans as JSON
/// scalars, data as {"base64": …}, dates as {"date": seconds since 2001}, arrays and dictionaries
/// as JSON arrays and objects.
[[nodiscard]] nlohmann::ordered_json propertyListJSON(const PropertyListValue& value);

/// A number printed as an integer when it has no fraction (168, not 168.0).
[[nodiscard]] nlohmann::ordered_json jsonNumber(double value);

} // namespace quenby
