#pragma once

#include "base/PropertyListDecoding.hpp"

namespace quenby {

/// Decodes binary, XML and old-style text property lists with CoreFoundation. Stateless and
/// usable from any thread. Nesting deeper than `kMaximumDepth` is refused while converting the
/// decoded objects.
class CoreFoundationPropertyListDecoder final : public PropertyListDecoding {
public:
  [[nodiscard]] Expected<PropertyListValue, PropertyListDecodingError>
  decode(std::span<const std::uint8_t> bytes) const override;
};

} // namespace quenby
