#include "base/KeyValueStore.hpp"

#include <cmath>
#include <limits>

namespace quenby {

std::optional<std::string> KeyValueStore::string(std::string_view key) const {
  const auto value = object(key);
  if (!value || value->string() == nullptr) {
    return std::nullopt;
  }
  return *value->string();
}

std::int64_t KeyValueStore::integer(std::string_view key) const {
  const auto value = object(key);
  if (!value) {
    return 0;
  }
  if (const auto* integer = value->integer()) {
    return *integer;
  }
  if (const auto* boolean = value->boolean()) {
    return *boolean ? 1 : 0;
  }
  if (const auto* real = value->real()) {
    // Out-of-range and NaN reals would be undefined to convert.
    constexpr double limit = 9.2e18;
    if (std::isfinite(*real) && std::fabs(*real) < limit) {
      return static_cast<std::int64_t>(*real);
    }
  }
  return 0;
}

bool KeyValueStore::setVerified(std::string_view key, const PropertyListValue& value) {
  set(key, value);
  const auto kept = object(key);
  return kept && *kept == value;
}

bool KeyValueStore::isTrue(std::string_view key) const {
  const auto value = object(key);
  return value && value->boolean() != nullptr && *value->boolean();
}

} // namespace quenby
