#pragma once

#include "base/Localizer.hpp"

#include <string>
#include <string_view>

namespace quenby {

/// Why unreadable letter mappings could not be set aside. The main key is left as it was
/// unless the copy was kept.
struct MappingQuarantineError {
  enum class Kind {
    /// The copy under the backup key did not take.
    backupFailed,
    /// The copy took, but the empty document under the main key did not.
    resetFailed,
    /// The backup key already held an earlier copy, which is never overwritten.
    operation,
  };

  Kind kind = Kind::backupFailed;
  std::string backupKey;

  /// "backup", "reset" or "operation": the last component of the failure's id.
  [[nodiscard]] std::string_view idSuffix() const;
  [[nodiscard]] std::string description(const Localizer& localizer) const;

  friend bool operator==(const MappingQuarantineError&, const MappingQuarantineError&) = default;
};

} // namespace quenby
