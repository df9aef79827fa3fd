#pragma once

#include "base/PropertyListValue.hpp"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quenby {

/// The user defaults: typed property-list values under string keys. Writes take effect at once
/// for later reads in this process; whether they reach the disk is the platform's business.
class KeyValueStore {
public:
  virtual ~KeyValueStore() = default;

  [[nodiscard]] virtual std::optional<PropertyListValue> object(std::string_view key) const = 0;
  virtual void set(std::string_view key, PropertyListValue value) = 0;
  virtual void remove(std::string_view key) = 0;

  /// Writes `value`, then reads it back: false when the store did not keep it (another process
  /// or a managed profile can override a key, and the platform reports nothing). Whatever must
  /// survive a relaunch is written this way.
  [[nodiscard]] bool setVerified(std::string_view key, const PropertyListValue& value);

  /// The value when it is a string; absent otherwise.
  [[nodiscard]] std::optional<std::string> string(std::string_view key) const;
  /// The value when it is an integer, a real (truncated) or a Boolean (0 or 1); 0 otherwise.
  [[nodiscard]] std::int64_t integer(std::string_view key) const;
  /// True only when the value is the Boolean true.
  [[nodiscard]] bool isTrue(std::string_view key) const;
};

} // namespace quenby
