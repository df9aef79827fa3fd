#include "simulation/PropertyListJSON.hpp"

#include <cmath>
#include <string>

namespace quenby {
namespace {

std::string base64(const PropertyListValue::Data& bytes) {
  static constexpr char alphabet[] =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::string out;
  out.reserve((bytes.size() + 2) / 3 * 4);
  std::size_t i = 0;
  for (; i + 2 < bytes.size(); i += 3) {
    const unsigned triple = (bytes[i] << 16U) | (bytes[i + 1] << 8U) | bytes[i + 2];
    out.push_back(alphabet[(triple >> 18U) & 63U]);
    out.push_back(alphabet[(triple >> 12U) & 63U]);
    out.push_back(alphabet[(triple >> 6U) & 63U]);
    out.push_back(alphabet[triple & 63U]);
  }
  if (const std::size_t rest = bytes.size() - i; rest > 0) {
    const unsigned triple = (bytes[i] << 16U) | (rest == 2 ? bytes[i + 1] << 8U : 0U);
    out.push_back(alphabet[(triple >> 18U) & 63U]);
    out.push_back(alphabet[(triple >> 12U) & 63U]);
    out.push_back(rest == 2 ? alphabet[(triple >> 6U) & 63U] : '=');
    out.push_back('=');
  }
  return out;
}

} // namespace

nlohmann::ordered_json jsonNumber(double value) {
  constexpr double exactIntegerLimit = 9.0e15;
  if (std::isfinite(value) && std::floor(value) == value && std::fabs(value) < exactIntegerLimit) {
    return static_cast<std::int64_t>(value);
  }
  return value;
}

nlohmann::ordered_json propertyListJSON(const PropertyListValue& value) {
  using Kind = PropertyListValue::Kind;
  switch (value.kind()) {
  case Kind::boolean:
    return *value.boolean();
  case Kind::integer:
    return *value.integer();
  case Kind::real:
    return *value.real();
  case Kind::string:
    return *value.string();
  case Kind::data:
    return nlohmann::ordered_json{{"base64", base64(*value.data())}};
  case Kind::date:
    return nlohmann::ordered_json{{"date", jsonNumber(value.date()->secondsSinceReferenceDate)}};
  case Kind::array: {
    auto array = nlohmann::ordered_json::array();
    for (const auto& element : *value.array()) {
      array.push_back(propertyListJSON(element));
    }
    return array;
  }
  case Kind::dictionary: {
    auto object = nlohmann::ordered_json::object();
    for (const auto& [key, element] : *value.dictionary()) {
      object[key] = propertyListJSON(element);
    }
    return object;
  }
  }
  return nullptr;
}

} // namespace quenby
