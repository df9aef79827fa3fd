#pragma once

#include "base/KeyValueStore.hpp"

namespace quenby {

/// The process's standard user defaults. Main thread only. Values go through the Foundation
/// conversion, so Booleans, integers and reals keep their kinds across a round trip. A value
/// that Foundation cannot hold (text that is not UTF-8) is not written, and an unreadable stored
/// value reads as absent.
class UserDefaultsKeyValueStore final : public KeyValueStore {
public:
  [[nodiscard]] std::optional<PropertyListValue> object(std::string_view key) const override;
  void set(std::string_view key, PropertyListValue value) override;
  void remove(std::string_view key) override;
};

} // namespace quenby
