#pragma once

#include <optional>
#include <string>

namespace quenby {

/// Why a running keyboard tap may still not see the keys, as the menu explains it.
struct KeyboardAccessCondition {
  /// Secure keyboard entry is on; the name of the application holding it, empty when unknown.
  std::optional<std::string> secureInputHolder;
  /// The system counted key-downs that the tap never received: a grant that macOS still shows
  /// but no longer honours, typically after the application was updated or re-signed.
  bool tapLooksStale = false;

  friend bool operator==(const KeyboardAccessCondition&, const KeyboardAccessCondition&) = default;
};

} // namespace quenby
