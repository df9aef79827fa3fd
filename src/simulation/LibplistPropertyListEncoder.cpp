#include "simulation/LibplistPropertyListEncoder.hpp"

#include "base/PropertyListDecoding.hpp"

#include <cmath>
#include <cstdlib>
#include <limits>
#include <memory>
#include <plist/plist.h>

namespace quenby {
namespace {

struct PlistFree {
  void operator()(void* node) const { plist_free(node); }
};
using PlistNode = std::unique_ptr<void, PlistFree>;

struct MallocFree {
  void operator()(char* memory) const { std::free(memory); }
};

plist_t newDate(double secondsSinceReferenceDate) {
  constexpr double lowest = std::numeric_limits<std::int32_t>::min();
  constexpr double highest = std::numeric_limits<std::int32_t>::max();
  if (std::isnan(secondsSinceReferenceDate)) {
    secondsSinceReferenceDate = 0;
  }
  const double clamped = std::fmin(std::fmax(secondsSinceReferenceDate, lowest), highest);
  double whole = std::trunc(clamped);
  double micros = std::round((clamped - whole) * 1e6);
  if (std::fabs(micros) >= 1e6) { // rounding carried into the next second
    whole += micros > 0 ? 1 : -1;
    micros = 0;
  }
  whole = std::fmin(std::fmax(whole, lowest), highest);
  return plist_new_date(static_cast<std::int32_t>(whole), static_cast<std::int32_t>(micros));
}

// Depth counts enclosing containers; a value nesting deeper than any reader accepts yields null.
PlistNode toPlist(const PropertyListValue& value, int depth) {
  switch (value.kind()) {
  case PropertyListValue::Kind::boolean:
    return PlistNode(plist_new_bool(*value.boolean() ? 1 : 0));
  case PropertyListValue::Kind::integer:
    // Two's complement: libplist writes 64-bit values as the eight bytes a reader takes as signed.
    return PlistNode(plist_new_uint(static_cast<std::uint64_t>(*value.integer())));
  case PropertyListValue::Kind::real:
    return PlistNode(plist_new_real(*value.real()));
  case PropertyListValue::Kind::string:
    return PlistNode(plist_new_string(value.string()->c_str()));
  case PropertyListValue::Kind::data: {
    const auto& bytes = *value.data();
    return PlistNode(plist_new_data(reinterpret_cast<const char*>(bytes.data()), bytes.size()));
  }
  case PropertyListValue::Kind::date:
    return PlistNode(newDate(value.date()->secondsSinceReferenceDate));
  case PropertyListValue::Kind::array: {
    if (depth + 1 > PropertyListDecoding::kMaximumDepth) {
      return nullptr;
    }
    PlistNode array(plist_new_array());
    for (const auto& element : *value.array()) {
      PlistNode item = toPlist(element, depth + 1);
      if (!item) {
        return nullptr;
      }
      plist_array_append_item(array.get(), item.release());
    }
    return array;
  }
  case PropertyListValue::Kind::dictionary: {
    if (depth + 1 > PropertyListDecoding::kMaximumDepth) {
      return nullptr;
    }
    PlistNode dictionary(plist_new_dict());
    for (const auto& [key, element] : *value.dictionary()) {
      PlistNode item = toPlist(element, depth + 1);
      if (!item) {
        return nullptr;
      }
      plist_dict_set_item(dictionary.get(), key.c_str(), item.release());
    }
    return dictionary;
  }
  }
  return nullptr;
}

} // namespace

std::vector<std::uint8_t>
LibplistPropertyListEncoder::encodeBinary(const PropertyListValue& value) {
  const PlistNode root = toPlist(value, 0);
  if (!root) {
    return {};
  }
  char* raw = nullptr;
  std::uint32_t length = 0;
  plist_to_bin(root.get(), &raw, &length);
  const std::unique_ptr<char, MallocFree> bytes(raw);
  if (!bytes) {
    return {};
  }
  const auto* begin = reinterpret_cast<const std::uint8_t*>(bytes.get());
  return {begin, begin + length};
}

std::string LibplistPropertyListEncoder::encodeXML(const PropertyListValue& value) {
  const PlistNode root = toPlist(value, 0);
  if (!root) {
    return {};
  }
  char* raw = nullptr;
  std::uint32_t length = 0;
  plist_to_xml(root.get(), &raw, &length);
  const std::unique_ptr<char, MallocFree> text(raw);
  return text ? std::string(text.get(), length) : std::string();
}

} // namespace quenby
