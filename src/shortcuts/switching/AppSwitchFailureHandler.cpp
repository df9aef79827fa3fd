#include "shortcuts/switching/AppSwitchFailureHandler.hpp"

namespace quenby {

namespace {

// The id is the key of the "already reported" marker in the user defaults: it must not change.
std::string failureId(const AppSwitchConfigurationFailure& failure, const AppMapping& mapping) {
  std::string id = "switch.configuration." + mapping.bundleIdentifier + ".";
  if (const auto& problem = failure.problem()) {
    id += problem->kind() == ApplicationResolutionProblem::Kind::ambiguous ? "ambiguous"
                                                                           : "not-found";
  } else {
    id += "invalid-url";
  }
  return id;
}

} // namespace

void AppSwitchFailureHandler::handleFailure(const AppSwitchingError& error,
                                            const AppMapping& mapping) {
  const auto& failure = error.configurationFailure();
  if (!failure) {
    transientObserver_(error);
    return;
  }
  reporter_.report({.id = failureId(*failure, mapping),
                    .title = localizer_.localized(kSwitchMappingNeedsAttentionText),
                    .message = mapping.displayName + ": " + failure->description(localizer_)});
}

} // namespace quenby
