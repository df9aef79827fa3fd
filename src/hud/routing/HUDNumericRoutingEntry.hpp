#pragma once

#include "hud/routing/HUDNumericMappingProblem.hpp"
#include "shortcuts/mapping/AppMapping.hpp"

#include <variant>

namespace quenby {

/// What a digit leads to while the HUD is up: an application to switch to, or why there is none.
class HUDNumericRoutingEntry {
public:
  /// An empty Dock position.
  HUDNumericRoutingEntry()
      : state_(HUDNumericMappingProblem::unavailable(NumberMappingProblem::emptyDockPosition())) {}

  [[nodiscard]] static HUDNumericRoutingEntry available(AppMapping mapping) {
    return HUDNumericRoutingEntry(std::move(mapping));
  }
  [[nodiscard]] static HUDNumericRoutingEntry problem(HUDNumericMappingProblem problem) {
    return HUDNumericRoutingEntry(std::move(problem));
  }

  /// Null when there is a problem.
  [[nodiscard]] const AppMapping* mapping() const { return std::get_if<AppMapping>(&state_); }
  /// Null when there is a mapping.
  [[nodiscard]] const HUDNumericMappingProblem* problem() const {
    return std::get_if<HUDNumericMappingProblem>(&state_);
  }

  friend bool operator==(const HUDNumericRoutingEntry&, const HUDNumericRoutingEntry&) = default;

private:
  explicit HUDNumericRoutingEntry(std::variant<AppMapping, HUDNumericMappingProblem> state)
      : state_(std::move(state)) {}

  std::variant<AppMapping, HUDNumericMappingProblem> state_;
};

} // namespace quenby
