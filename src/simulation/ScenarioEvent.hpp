#pragma once

#include <cstdint>
#include <nlohmann/json.hpp>
#include <string>

namespace quenby {

/// One effect of a scenario: what happened, when (virtual milliseconds), and its fields in the
/// order they are printed.
struct ScenarioEvent {
  std::int64_t milliseconds = 0;
  std::string name;
  nlohmann::ordered_json fields = nlohmann::ordered_json::object();
};

/// Receives the effects of a scenario in the order they happen.
class ScenarioEventSink {
public:
  virtual ~ScenarioEventSink() = default;
  virtual void emit(const ScenarioEvent& event) = 0;
};

} // namespace quenby
