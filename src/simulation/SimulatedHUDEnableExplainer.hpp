#pragma once

#include "app/menu/HUDEnableExplaining.hpp"
#include "simulation/ScenarioEventRecorder.hpp"

#include <deque>

namespace quenby {

/// The enable alert answered by the script: the oldest queued answer (true for continue), or
/// cancel when none is queued, printed as an `alert` line. `answers` and `recorder` must outlive
/// it.
class SimulatedHUDEnableExplainer final : public HUDEnableExplaining {
public:
  SimulatedHUDEnableExplainer(std::deque<bool>& answers, const ScenarioEventRecorder& recorder)
      : answers_(answers), recorder_(recorder) {}

  [[nodiscard]] bool confirmEnable(const HUDEnableExplanation& explanation) override {
    bool answer = false;
    if (!answers_.empty()) {
      answer = answers_.front();
      answers_.pop_front();
    }
    recorder_.emit("alert",
                   {{"message", explanation.message}, {"answer", answer ? "continue" : "cancel"}});
    return answer;
  }

private:
  std::deque<bool>& answers_;
  const ScenarioEventRecorder& recorder_;
};

} // namespace quenby
