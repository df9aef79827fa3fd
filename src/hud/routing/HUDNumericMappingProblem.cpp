#include "hud/routing/HUDNumericMappingProblem.hpp"

#include "base/StringFormatter.hpp"
#include "hud/routing/HUDRoutingTexts.hpp"
#include "shortcuts/hotkeys/UnavailableDockPositionFailure.hpp"

namespace quenby {

std::string HUDNumericMappingProblem::message(int digit, const Localizer& localizer) const {
  if (const auto* unavailable = unavailableProblem()) {
    return unavailableDockPositionFailure(digit, *unavailable, localizer).message;
  }
  const auto& unresolved = std::get<ApplicationResolutionProblem>(problem_);
  const auto position = static_cast<long long>(digit);
  if (unresolved.kind() == ApplicationResolutionProblem::Kind::notFound) {
    return formatLocalized(localizer.localized(kHUDDigitApplicationNotFoundText), {position});
  }
  std::string candidates;
  for (const auto& candidate : unresolved.candidatePaths()) {
    candidates += (candidates.empty() ? "" : ", ") + candidate.path();
  }
  return formatLocalized(localizer.localized(kHUDDigitApplicationAmbiguousText),
                         {position, candidates});
}

} // namespace quenby
