#pragma once

#include "base/MonotonicClock.hpp"
#include "simulation/ScenarioEvent.hpp"

#include <string>

namespace quenby {

/// Stamps each effect with the current virtual time and hands it to the sink.
class ScenarioEventRecorder {
public:
  ScenarioEventRecorder(ScenarioEventSink& sink, const MonotonicClock& clock)
      : sink_(sink), clock_(clock) {}

  void emit(std::string name,
            nlohmann::ordered_json fields = nlohmann::ordered_json::object()) const;

private:
  ScenarioEventSink& sink_;
  const MonotonicClock& clock_;
};

} // namespace quenby
