#pragma once

#include "base/Hashing.hpp"

#include <string>

namespace quenby {

/// The identity of one installed application as the catalog sees it.
struct ApplicationMetadata {
  std::string bundleIdentifier;
  std::string displayName;
  /// Opaque; changes whenever the bundle on disk changes.
  std::string catalogFingerprint;

  friend bool operator==(const ApplicationMetadata&, const ApplicationMetadata&) = default;
};

} // namespace quenby

template <> struct std::hash<quenby::ApplicationMetadata> {
  std::size_t operator()(const quenby::ApplicationMetadata& metadata) const noexcept {
    std::size_t seed = 0;
    quenby::hashCombine(seed, metadata.bundleIdentifier);
    quenby::hashCombine(seed, metadata.displayName);
    quenby::hashCombine(seed, metadata.catalogFingerprint);
    return seed;
  }
};
