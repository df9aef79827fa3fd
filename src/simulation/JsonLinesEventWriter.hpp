#pragma once

#include "simulation/ScenarioEvent.hpp"

#include <iosfwd>

namespace quenby {

/// Writes each effect as one JSON object per line: {"t":…,"event":…, fields…}.
class JsonLinesEventWriter final : public ScenarioEventSink {
public:
  explicit JsonLinesEventWriter(std::ostream& out) : out_(out) {}
  void emit(const ScenarioEvent& event) override;

  /// The object as printed, for callers that collect lines.
  [[nodiscard]] static std::string format(const ScenarioEvent& event);

private:
  std::ostream& out_;
};

} // namespace quenby
