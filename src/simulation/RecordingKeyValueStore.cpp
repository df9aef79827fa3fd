#include "simulation/RecordingKeyValueStore.hpp"

#include "simulation/PropertyListJSON.hpp"

namespace quenby {

std::optional<PropertyListValue> RecordingKeyValueStore::object(std::string_view key) const {
  return domain_->object(key);
}

void RecordingKeyValueStore::set(std::string_view key, PropertyListValue value) {
  recorder_.emit("write", {{"key", key}, {"value", propertyListJSON(value)}});
  domain_->set(key, std::move(value));
}

void RecordingKeyValueStore::remove(std::string_view key) {
  recorder_.emit("remove", {{"key", key}});
  domain_->remove(key);
}

} // namespace quenby
