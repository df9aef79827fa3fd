#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace quenby {

/// A date as property lists store it: seconds since 2001-01-01 00:00:00 UTC.
struct PropertyListDate {
  double secondsSinceReferenceDate = 0;
  friend bool operator==(const PropertyListDate&, const PropertyListDate&) = default;
};

/// One property-list value. Booleans, integers and reals stay distinct kinds (a stored `true` is
/// never the integer 1), because the typed preference rules tell them apart. Arrays and
/// dictionaries are shared and immutable, so copying a large value is cheap.
class PropertyListValue {
public:
  using Data = std::vector<std::uint8_t>;
  using Array = std::vector<PropertyListValue>;
  using Dictionary = std::map<std::string, PropertyListValue, std::less<>>;

  enum class Kind { boolean, integer, real, string, data, date, array, dictionary };

  PropertyListValue(bool value);             // NOLINT: implicit by design
  PropertyListValue(std::int64_t value);     // NOLINT
  PropertyListValue(int value);              // NOLINT
  PropertyListValue(double value);           // NOLINT
  PropertyListValue(std::string value);      // NOLINT
  PropertyListValue(std::string_view value); // NOLINT
  PropertyListValue(const char* value);      // NOLINT
  PropertyListValue(Data value);             // NOLINT
  PropertyListValue(PropertyListDate value); // NOLINT
  PropertyListValue(Array value);            // NOLINT
  PropertyListValue(Dictionary value);       // NOLINT

  [[nodiscard]] Kind kind() const { return static_cast<Kind>(storage_.index()); }
  /// "boolean", "integer", … for messages.
  [[nodiscard]] static std::string_view kindName(Kind kind);

  [[nodiscard]] const bool* boolean() const { return std::get_if<bool>(&storage_); }
  [[nodiscard]] const std::int64_t* integer() const { return std::get_if<std::int64_t>(&storage_); }
  [[nodiscard]] const double* real() const { return std::get_if<double>(&storage_); }
  [[nodiscard]] const std::string* string() const { return std::get_if<std::string>(&storage_); }
  [[nodiscard]] const Data* data() const { return std::get_if<Data>(&storage_); }
  [[nodiscard]] const PropertyListDate* date() const {
    return std::get_if<PropertyListDate>(&storage_);
  }
  [[nodiscard]] const Array* array() const;
  [[nodiscard]] const Dictionary* dictionary() const;

  /// The value under `key` when this is a dictionary that has it.
  [[nodiscard]] const PropertyListValue* find(std::string_view key) const;

  friend bool operator==(const PropertyListValue& a, const PropertyListValue& b);

private:
  using Storage = std::variant<bool, std::int64_t, double, std::string, Data, PropertyListDate,
                               std::shared_ptr<const Array>, std::shared_ptr<const Dictionary>>;
  Storage storage_;
};

} // namespace quenby
