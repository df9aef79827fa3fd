#pragma once

#include <string>

namespace quenby {

/// How one switch to an application ended, as the usage analytics keep it.
struct StoredAppOutcome {
  enum class Result { success, failure };

  Result result;
  std::string bundleIdentifier;
  std::string displayName;

  friend bool operator==(const StoredAppOutcome&, const StoredAppOutcome&) = default;
};

} // namespace quenby
