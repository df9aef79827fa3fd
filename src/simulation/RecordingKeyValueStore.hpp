#pragma once

#include "base/KeyValueStore.hpp"
#include "simulation/ScenarioEventRecorder.hpp"

#include <memory>

namespace quenby {

/// The program's view of the simulated user defaults: every write and removal it makes is
/// printed as a `write` or `remove` effect before it reaches the shared domain.
class RecordingKeyValueStore final : public KeyValueStore {
public:
  RecordingKeyValueStore(std::shared_ptr<KeyValueStore> domain,
                         const ScenarioEventRecorder& recorder)
      : domain_(std::move(domain)), recorder_(recorder) {}

  [[nodiscard]] std::optional<PropertyListValue> object(std::string_view key) const override;
  void set(std::string_view key, PropertyListValue value) override;
  void remove(std::string_view key) override;

private:
  std::shared_ptr<KeyValueStore> domain_;
  const ScenarioEventRecorder& recorder_;
};

} // namespace quenby
