#pragma once

#include "base/FileURL.hpp"
#include "shortcuts/mapping/ApplicationResolution.hpp"

#include <cstdint>
#include <string>

namespace quenby {

/// Finds where a mapped application is installed now.
class ApplicationResolving {
public:
  virtual ~ApplicationResolving() = default;
  /// Answers from what the catalog last verified (no disk access) and remembers `lastKnownURL`
  /// so that later catalog refreshes look there too.
  [[nodiscard]] virtual ApplicationResolution resolve(const std::string& bundleIdentifier,
                                                      const FileURL& lastKnownURL) = 0;
  /// Rises whenever the verified installed copies change.
  [[nodiscard]] virtual std::uint64_t catalogRevision() const = 0;
};

} // namespace quenby
