#pragma once

#include "shortcuts/mapping/AppMapping.hpp"
#include "shortcuts/mapping/NumberMappingProblem.hpp"

#include <variant>

namespace quenby {

/// The state of one Dock position: a mapping whose source is that position, or the problem.
class NumberMappingEntry {
public:
  /// An empty Dock position.
  NumberMappingEntry() : state_(NumberMappingProblem::emptyDockPosition()) {}

  [[nodiscard]] static NumberMappingEntry mapped(AppMapping mapping) {
    return NumberMappingEntry(std::move(mapping));
  }
  [[nodiscard]] static NumberMappingEntry unavailable(NumberMappingProblem problem) {
    return NumberMappingEntry(std::move(problem));
  }

  /// The mapping, or null when the position is unavailable.
  [[nodiscard]] const AppMapping* mapping() const { return std::get_if<AppMapping>(&state_); }
  /// The problem, or null when the position is mapped.
  [[nodiscard]] const NumberMappingProblem* problem() const {
    return std::get_if<NumberMappingProblem>(&state_);
  }

  friend bool operator==(const NumberMappingEntry&, const NumberMappingEntry&) = default;

private:
  explicit NumberMappingEntry(std::variant<AppMapping, NumberMappingProblem> state)
      : state_(std::move(state)) {}

  std::variant<AppMapping, NumberMappingProblem> state_;
};

} // namespace quenby
