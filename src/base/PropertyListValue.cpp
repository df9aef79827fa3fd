#include "base/PropertyListValue.hpp"

#include <utility>

namespace quenby {

PropertyListValue::PropertyListValue(bool value) : storage_(value) {}
PropertyListValue::PropertyListValue(std::int64_t value) : storage_(value) {}
PropertyListValue::PropertyListValue(int value) : storage_(std::int64_t{value}) {}
PropertyListValue::PropertyListValue(double value) : storage_(value) {}
PropertyListValue::PropertyListValue(std::string value) : storage_(std::move(value)) {}
PropertyListValue::PropertyListValue(std::string_view value) : storage_(std::string(value)) {}
PropertyListValue::PropertyListValue(const char* value) : storage_(std::string(value)) {}
PropertyListValue::PropertyListValue(Data value) : storage_(std::move(value)) {}
PropertyListValue::PropertyListValue(PropertyListDate value) : storage_(value) {}
PropertyListValue::PropertyListValue(Array value)
    : storage_(std::make_shared<const Array>(std::move(value))) {}
PropertyListValue::PropertyListValue(Dictionary value)
    : storage_(std::make_shared<const Dictionary>(std::move(value))) {}

std::string_view PropertyListValue::kindName(Kind kind) {
  switch (kind) {
  case Kind::boolean:
    return "boolean";
  case Kind::integer:
    return "integer";
  case Kind::real:
    return "real";
  case Kind::string:
    return "string";
  case Kind::data:
    return "data";
  case Kind::date:
    return "date";
  case Kind::array:
    return "array";
  case Kind::dictionary:
    return "dictionary";
  }
  return "unknown";
}

const PropertyListValue::Array* PropertyListValue::array() const {
  const auto* shared = std::get_if<std::shared_ptr<const Array>>(&storage_);
  return shared ? shared->get() : nullptr;
}

const PropertyListValue::Dictionary* PropertyListValue::dictionary() const {
  const auto* shared = std::get_if<std::shared_ptr<const Dictionary>>(&storage_);
  return shared ? shared->get() : nullptr;
}

const PropertyListValue* PropertyListValue::find(std::string_view key) const {
  const Dictionary* entries = dictionary();
  if (entries == nullptr) {
    return nullptr;
  }
  const auto found = entries->find(key);
  return found == entries->end() ? nullptr : &found->second;
}

bool operator==(const PropertyListValue& a, const PropertyListValue& b) {
  if (a.kind() != b.kind()) {
    return false;
  }
  if (const auto* left = a.array()) {
    return left == b.array() || *left == *b.array();
  }
  if (const auto* left = a.dictionary()) {
    return left == b.dictionary() || *left == *b.dictionary();
  }
  return a.storage_ == b.storage_;
}

} // namespace quenby
