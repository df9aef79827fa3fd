#pragma once

#include "shortcuts/mapping/AppMapping.hpp"

#include <variant>

namespace quenby {

/// What an assigned letter leads to: an application to switch to, or why it can't be found.
class HUDLetterRoutingEntry {
public:
  [[nodiscard]] static HUDLetterRoutingEntry available(AppMapping mapping) {
    return HUDLetterRoutingEntry(std::move(mapping));
  }
  [[nodiscard]] static HUDLetterRoutingEntry unresolved(ApplicationResolutionProblem problem) {
    return HUDLetterRoutingEntry(std::move(problem));
  }

  /// Null when unresolved.
  [[nodiscard]] const AppMapping* mapping() const { return std::get_if<AppMapping>(&state_); }
  /// Null when available.
  [[nodiscard]] const ApplicationResolutionProblem* problem() const {
    return std::get_if<ApplicationResolutionProblem>(&state_);
  }

  friend bool operator==(const HUDLetterRoutingEntry&, const HUDLetterRoutingEntry&) = default;

private:
  explicit HUDLetterRoutingEntry(std::variant<AppMapping, ApplicationResolutionProblem> state)
      : state_(std::move(state)) {}

  std::variant<AppMapping, ApplicationResolutionProblem> state_;
};

} // namespace quenby
