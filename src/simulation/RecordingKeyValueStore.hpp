#pragma once

#include "base/KeyValueStore.hpp"
#include "simulation/ScenarioEventRecorder.hpp"

#include <functional>
#include <memory>
#include <string>

namespace quenby {

/// The program's view of the simulated user defaults: every write and removal it makes is
/// printed as a `write` or `remove` effect before it reaches the shared domain. Texts and data
/// are printed as `display` rewrites them (paths below the simulated disk without its location),
/// so that a transcript does not depend on where the disk happens to be.
class RecordingKeyValueStore final : public KeyValueStore {
public:
  using Display = std::function<std::string(std::string)>;

  RecordingKeyValueStore(std::shared_ptr<KeyValueStore> domain,
                         const ScenarioEventRecorder& recorder, Display display)
      : domain_(std::move(domain)), recorder_(recorder), display_(std::move(display)) {}

  [[nodiscard]] std::optional<PropertyListValue> object(std::string_view key) const override;
  void set(std::string_view key, PropertyListValue value) override;
  void remove(std::string_view key) override;

private:
  std::shared_ptr<KeyValueStore> domain_;
  const ScenarioEventRecorder& recorder_;
  Display display_;
};

} // namespace quenby
