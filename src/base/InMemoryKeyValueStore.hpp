#pragma once

#include "base/KeyValueStore.hpp"

#include <map>
#include <string>

namespace quenby {

/// User defaults held in memory: the inert store, and the simulated Mac's defaults domain.
class InMemoryKeyValueStore final : public KeyValueStore {
public:
  [[nodiscard]] std::optional<PropertyListValue> object(std::string_view key) const override;
  void set(std::string_view key, PropertyListValue value) override;
  void remove(std::string_view key) override;

  [[nodiscard]] const std::map<std::string, PropertyListValue, std::less<>>& entries() const {
    return entries_;
  }

private:
  std::map<std::string, PropertyListValue, std::less<>> entries_;
};

} // namespace quenby
