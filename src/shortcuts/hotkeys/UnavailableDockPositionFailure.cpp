#include "shortcuts/hotkeys/UnavailableDockPositionFailure.hpp"

#include "base/StringFormatter.hpp"

#include <string>

namespace quenby {
namespace {

const char* unavailableSuffix(NumberMappingProblem::Kind kind) {
  switch (kind) {
  case NumberMappingProblem::Kind::invalidDockEntry:
    return "invalid-entry";
  case NumberMappingProblem::Kind::preferencesUnavailable:
    return "preferences-unavailable";
  case NumberMappingProblem::Kind::emptyDockPosition:
    break;
  }
  return "empty-position";
}

} // namespace

ConfigurationFailure unavailableDockPositionFailure(int position,
                                                    const NumberMappingProblem& problem,
                                                    const Localizer& localizer) {
  const std::string explanation = problem.kind() == NumberMappingProblem::Kind::emptyDockPosition
                                      ? formatLocalized(localizer.localized(kEmptyDockPositionText),
                                                        {static_cast<long long>(position)})
                                      : problem.message();
  return {
      .id = "switch.configuration.dock." + std::to_string(position) + "." +
            unavailableSuffix(problem.kind()),
      .title = localizer.localized(kDockShortcutReadOnlyTitle),
      .message = formatLocalized(localizer.localized(kDockShortcutReadOnlyMessage), {explanation}),
  };
}

} // namespace quenby
