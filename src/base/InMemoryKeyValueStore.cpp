#include "base/InMemoryKeyValueStore.hpp"

#include <utility>

namespace quenby {

std::optional<PropertyListValue> InMemoryKeyValueStore::object(std::string_view key) const {
  const auto found = entries_.find(key);
  if (found == entries_.end()) {
    return std::nullopt;
  }
  return found->second;
}

void InMemoryKeyValueStore::set(std::string_view key, PropertyListValue value) {
  entries_.insert_or_assign(std::string(key), std::move(value));
}

void InMemoryKeyValueStore::remove(std::string_view key) {
  if (const auto found = entries_.find(key); found != entries_.end()) {
    entries_.erase(found);
  }
}

} // namespace quenby
