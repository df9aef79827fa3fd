#pragma once

#include "base/PropertyListValue.hpp"

#include <cstdint>
#include <string>
#include <vector>

namespace quenby {

/// Writes property lists with libplist, so that the simulation and the tests produce the same
/// files the system would (an application's Info.plist, the Dock's preferences).
///
/// What libplist 2.2 cannot carry is written as near as it can: strings stop at an embedded NUL,
/// and dates keep microseconds within the 32-bit range of seconds around 2001. A value nesting
/// deeper than `PropertyListDecoding::kMaximumDepth`, which no reader would accept, yields empty
/// output.
class LibplistPropertyListEncoder {
public:
  [[nodiscard]] static std::vector<std::uint8_t> encodeBinary(const PropertyListValue& value);
  [[nodiscard]] static std::string encodeXML(const PropertyListValue& value);
};

} // namespace quenby
