#include "shortcuts/switching/WorkspaceAppSwitchingAdapter.hpp"

#include <utility>

namespace quenby {

void WorkspaceAppSwitchingAdapter::switchToApplication(const AppMapping& mapping,
                                                       Completion completion) {
  const auto first = resolver_.resolve(mapping.bundleIdentifier, mapping.lastKnownURL);
  const auto url = first.resolvedURL();
  if (!url || !presenceChecker_.applicationExists(*url)) {
    retryAfterRefresh(mapping, std::move(completion));
    return;
  }
  opener_.openApplication(
      *url, lifetime_.weak([this, mapping, completion = std::move(completion)](
                               const std::optional<std::string>& errorDescription) mutable {
        if (!errorDescription) {
          completion(std::nullopt);
          return;
        }
        // The first attempt's error is dropped: the retry's outcome is the one that counts.
        retryAfterRefresh(mapping, std::move(completion));
      }));
}

void WorkspaceAppSwitchingAdapter::retryAfterRefresh(const AppMapping& mapping,
                                                     Completion completion) {
  // No Spotlight candidates: Launch Services is asked afresh for every identifier.
  catalog_.refreshCatalog(nullptr);
  const auto second = resolver_.resolve(mapping.bundleIdentifier, mapping.lastKnownURL);
  switch (second.kind()) {
  case ApplicationResolution::Kind::ambiguous:
    completion(AppSwitchingError::configuration(AppSwitchConfigurationFailure::unresolved(
        ApplicationResolutionProblem::ambiguous(second.candidatePaths()))));
    return;
  case ApplicationResolution::Kind::notFound:
    completion(AppSwitchingError::configuration(
        AppSwitchConfigurationFailure::unresolved(ApplicationResolutionProblem::notFound())));
    return;
  case ApplicationResolution::Kind::resolved:
    break;
  }
  // No second presence check: the refresh has just verified this copy.
  opener_.openApplication(*second.resolvedURL(),
                          lifetime_.weak([completion = std::move(completion)](
                                             const std::optional<std::string>& errorDescription) {
                            if (errorDescription) {
                              completion(AppSwitchingError::activationFailed(*errorDescription));
                            } else {
                              completion(std::nullopt);
                            }
                          }));
}

} // namespace quenby
