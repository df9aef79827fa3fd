#include "shortcuts/dock/DockPreferenceReading.hpp"

namespace quenby {

std::optional<DockPersistentApplications>
DockPersistentApplications::validated(PropertyListValue value) {
  const PropertyListValue::Array* items = value.array();
  if (items == nullptr) {
    return std::nullopt;
  }
  // Property-list dictionaries always have string keys, so the dictionary test is the whole
  // "string-keyed dictionary" check.
  for (const auto& item : *items) {
    if (item.dictionary() == nullptr) {
      return std::nullopt;
    }
  }
  return DockPersistentApplications(std::move(value));
}

} // namespace quenby
