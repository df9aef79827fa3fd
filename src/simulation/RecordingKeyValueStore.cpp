#include "simulation/RecordingKeyValueStore.hpp"

#include "simulation/PropertyListJSON.hpp"

namespace quenby {

std::optional<PropertyListValue> RecordingKeyValueStore::object(std::string_view key) const {
  return domain_->object(key);
}

void RecordingKeyValueStore::set(std::string_view key, PropertyListValue value) {
  PropertyListValue printed = value;
  if (const auto* text = value.string()) {
    printed = display_(*text);
  } else if (const auto* bytes = value.data()) {
    const std::string shown = display_(std::string(bytes->begin(), bytes->end()));
    printed = PropertyListValue::Data(shown.begin(), shown.end());
  }
  recorder_.emit("write", {{"key", key}, {"value", propertyListJSON(printed)}});
  domain_->set(key, std::move(value));
}

void RecordingKeyValueStore::remove(std::string_view key) {
  recorder_.emit("remove", {{"key", key}});
  domain_->remove(key);
}

} // namespace quenby
