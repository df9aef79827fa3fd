#pragma once

#include "base/Logger.hpp"
#include "simulation/ScenarioEventRecorder.hpp"

namespace quenby {

/// Prints error-level log lines as `log` effects; quieter levels stay out of the transcript.
class SimulatedLogger final : public Logger {
public:
  explicit SimulatedLogger(const ScenarioEventRecorder& recorder) : recorder_(recorder) {}
  void log(LogLevel level, std::string_view category, std::string_view message) override;

private:
  const ScenarioEventRecorder& recorder_;
};

} // namespace quenby
