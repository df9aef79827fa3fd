#pragma once

#include "base/PropertyListDecoding.hpp"

namespace quenby {

/// Decodes binary ("bplist00") and XML property lists with libplist, for every platform but
/// macOS. Stateless: one instance may serve every caller.
///
/// libplist recurses as deep as the input nests, both while parsing and while freeing, so the
/// input's nesting is measured before libplist sees it (a scan of the XML tags, a walk of the
/// binary object table) and anything deeper than `kMaximumDepth` is refused as `tooDeep`.
///
/// Known limits of libplist 2.2 that show through: dates are whole seconds plus microseconds
/// clamped to the 32-bit range of seconds around 2001, and a date less than one second before
/// 2001 loses its sign; integers above INT64_MAX read back as their two's-complement negative.
/// UIDs and stray dictionary keys are refused as `malformed`.
class LibplistPropertyListDecoder final : public PropertyListDecoding {
public:
  [[nodiscard]] Expected<PropertyListValue, PropertyListDecodingError>
  decode(std::span<const std::uint8_t> bytes) const override;
};

} // namespace quenby
