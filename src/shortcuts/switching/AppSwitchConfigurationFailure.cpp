#include "shortcuts/switching/AppSwitchConfigurationFailure.hpp"

#include "base/Hashing.hpp"

namespace quenby {

std::string AppSwitchConfigurationFailure::description(const Localizer& localizer) const {
  if (const auto* unresolvedProblem = problem()) {
    return unresolvedProblem->message(localizer);
  }
  return localizer.localized(kSwitchInvalidURLText);
}

std::optional<AppSwitchConfigurationFailure> switchConfigurationFailure(const AppMapping& mapping) {
  const FileURL* url = mapping.resolution.resolvedURLIfAny();
  if (url == nullptr) {
    return AppSwitchConfigurationFailure::unresolved(*mapping.problem());
  }
  // A FileURL is always a file URL with an absolute path, so only the extension can fail.
  if (url->path().empty() || !url->hasPathExtension("app")) {
    return AppSwitchConfigurationFailure::invalidResolvedURL(*url);
  }
  return std::nullopt;
}

} // namespace quenby

std::size_t std::hash<quenby::AppSwitchConfigurationFailure>::operator()(
    const quenby::AppSwitchConfigurationFailure& failure) const noexcept {
  std::size_t seed = 0;
  if (const auto* problem = failure.problem()) {
    quenby::hashCombine(seed, 0);
    if (problem->kind() == quenby::ApplicationResolutionProblem::Kind::notFound) {
      quenby::hashCombine(seed, 0);
    } else {
      quenby::hashCombine(seed, 1);
      quenby::hashCombine(seed, problem->candidatePaths().size());
      for (const auto& candidate : problem->candidatePaths()) {
        quenby::hashCombine(seed, candidate);
      }
    }
  } else {
    quenby::hashCombine(seed, 1);
    quenby::hashCombine(seed, *failure.invalidURL());
  }
  return seed;
}
