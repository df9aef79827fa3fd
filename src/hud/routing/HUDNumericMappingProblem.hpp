#pragma once

#include "base/Localizer.hpp"
#include "shortcuts/mapping/ApplicationResolutionProblem.hpp"
#include "shortcuts/mapping/NumberMappingProblem.hpp"

#include <string>
#include <variant>

namespace quenby {

/// Why a digit has no usable application: its Dock position is empty or unreadable, or the
/// Dock's application cannot be found (or was found more than once).
class HUDNumericMappingProblem {
public:
  [[nodiscard]] static HUDNumericMappingProblem unavailable(NumberMappingProblem problem) {
    return HUDNumericMappingProblem(std::move(problem));
  }
  [[nodiscard]] static HUDNumericMappingProblem unresolved(ApplicationResolutionProblem problem) {
    return HUDNumericMappingProblem(std::move(problem));
  }

  /// Null unless the position itself is unavailable.
  [[nodiscard]] const NumberMappingProblem* unavailableProblem() const {
    return std::get_if<NumberMappingProblem>(&problem_);
  }
  /// Null unless the position holds an application that did not resolve.
  [[nodiscard]] const ApplicationResolutionProblem* unresolvedProblem() const {
    return std::get_if<ApplicationResolutionProblem>(&problem_);
  }

  /// What the user is told about `digit`: for an unavailable position the very explanation the
  /// modifier-digit shortcut gives, so the two never disagree.
  [[nodiscard]] std::string message(int digit, const Localizer& localizer) const;

  friend bool operator==(const HUDNumericMappingProblem&,
                         const HUDNumericMappingProblem&) = default;

private:
  explicit HUDNumericMappingProblem(
      std::variant<NumberMappingProblem, ApplicationResolutionProblem> problem)
      : problem_(std::move(problem)) {}

  std::variant<NumberMappingProblem, ApplicationResolutionProblem> problem_;
};

} // namespace quenby
