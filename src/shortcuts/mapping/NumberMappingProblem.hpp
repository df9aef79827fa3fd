#pragma once

#include <string>

namespace quenby {

/// Why a Dock position has no usable mapping.
class NumberMappingProblem {
public:
  enum class Kind { invalidDockEntry, preferencesUnavailable, emptyDockPosition };

  /// The item at this position cannot be used; `explanation` is already localised.
  [[nodiscard]] static NumberMappingProblem invalidDockEntry(std::string explanation) {
    return {Kind::invalidDockEntry, std::move(explanation)};
  }
  /// The Dock's preferences could not be read at all.
  [[nodiscard]] static NumberMappingProblem preferencesUnavailable(std::string explanation) {
    return {Kind::preferencesUnavailable, std::move(explanation)};
  }
  /// The Dock has fewer eligible pinned applications than this position.
  [[nodiscard]] static NumberMappingProblem emptyDockPosition() {
    return {Kind::emptyDockPosition, {}};
  }

  [[nodiscard]] Kind kind() const { return kind_; }
  /// The localised explanation; empty for an empty position.
  [[nodiscard]] const std::string& message() const { return message_; }
  /// "invalidDockEntry", "preferencesUnavailable" or "emptyDockPosition".
  [[nodiscard]] const char* name() const;

  friend bool operator==(const NumberMappingProblem&, const NumberMappingProblem&) = default;

private:
  NumberMappingProblem(Kind kind, std::string message)
      : kind_(kind), message_(std::move(message)) {}

  Kind kind_;
  std::string message_;
};

} // namespace quenby
