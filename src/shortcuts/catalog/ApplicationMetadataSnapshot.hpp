#pragma once

#include "shortcuts/catalog/ApplicationFileFingerprint.hpp"
#include "shortcuts/mapping/ApplicationMetadata.hpp"

#include <optional>

namespace quenby {

/// What one read of a bundle found, and the fingerprint it was read under: while the bundle
/// still has that fingerprint, the metadata need not be read again.
struct ApplicationMetadataSnapshot {
  /// Absent when the bundle is not a readable application bundle.
  std::optional<ApplicationMetadata> metadata;
  ApplicationFileFingerprint fingerprint;

  friend bool operator==(const ApplicationMetadataSnapshot&,
                         const ApplicationMetadataSnapshot&) = default;
};

} // namespace quenby
