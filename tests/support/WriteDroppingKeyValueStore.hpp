#pragma once

#include "base/InMemoryKeyValueStore.hpp"

#include <set>
#include <string>
#include <vector>

namespace quenby {

/// User defaults whose writes to chosen keys do not take (as when another process or a managed
/// profile overrides them), recording every write that was attempted.
class WriteDroppingKeyValueStore final : public KeyValueStore {
public:
  [[nodiscard]] std::optional<PropertyListValue> object(std::string_view key) const override {
    return entries_.object(key);
  }
  void set(std::string_view key, PropertyListValue value) override {
    writes.emplace_back(key);
    if (droppedKeys.count(std::string(key)) == 0) {
      entries_.set(key, std::move(value));
    }
  }
  void remove(std::string_view key) override { entries_.remove(key); }

  /// Seeds a value, even under a dropped key, without recording a write.
  void preset(std::string_view key, PropertyListValue value) {
    entries_.set(key, std::move(value));
  }

  std::set<std::string> droppedKeys;
  std::vector<std::string> writes;

private:
  InMemoryKeyValueStore entries_;
};

} // namespace quenby
