#pragma once

#include "base/Expected.hpp"
#include "base/PropertyListValue.hpp"

#include <cstdint>
#include <span>
#include <string>

namespace quenby {

/// Why bytes could not be decoded as a property list.
struct PropertyListDecodingError {
  enum class Kind { empty, malformed, tooDeep };
  Kind kind = Kind::malformed;
  std::string message;
  friend bool operator==(const PropertyListDecodingError&,
                         const PropertyListDecodingError&) = default;
};

/// Decodes binary and XML property lists into the core's value. macOS decodes with
/// CoreFoundation; elsewhere libplist does the work.
class PropertyListDecoding {
public:
  /// Nesting deeper than this is refused rather than recursed into: hostile input must not be
  /// able to exhaust the stack.
  static constexpr int kMaximumDepth = 256;

  virtual ~PropertyListDecoding() = default;
  [[nodiscard]] virtual Expected<PropertyListValue, PropertyListDecodingError>
  decode(std::span<const std::uint8_t> bytes) const = 0;
};

/// The inert decoder: decodes nothing.
class InertPropertyListDecoder final : public PropertyListDecoding {
public:
  [[nodiscard]] Expected<PropertyListValue, PropertyListDecodingError>
  decode(std::span<const std::uint8_t>) const override {
    return Unexpected{PropertyListDecodingError{PropertyListDecodingError::Kind::malformed,
                                                "no property-list decoder on this platform"}};
  }
};

} // namespace quenby
