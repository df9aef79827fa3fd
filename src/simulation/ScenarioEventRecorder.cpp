#include "simulation/ScenarioEventRecorder.hpp"

#include <chrono>
#include <utility>

namespace quenby {

void ScenarioEventRecorder::emit(std::string name, nlohmann::ordered_json fields) const {
  const auto milliseconds = std::chrono::duration_cast<std::chrono::milliseconds>(clock_.now());
  sink_.emit(ScenarioEvent{milliseconds.count(), std::move(name), std::move(fields)});
}

} // namespace quenby
