#pragma once

#include "simulation/ScenarioEvent.hpp"

#include <iosfwd>
#include <string>
#include <string_view>

namespace quenby {

/// Writes each effect as a short sentence for a person: "  120 ms  Saved settings.hudSize = …".
class NarratingEventWriter final : public ScenarioEventSink {
public:
  explicit NarratingEventWriter(std::ostream& out) : out_(out) {}
  void emit(const ScenarioEvent& event) override;
  /// A heading from the script ("#>" lines).
  void heading(std::string_view text);

  [[nodiscard]] static std::string sentence(const ScenarioEvent& event);

private:
  std::ostream& out_;
};

} // namespace quenby
