#include "shortcuts/switching/AppSwitchConfigurationFailure.hpp"

#include "base/Hashing.hpp"

namespace quenby {

std::string AppSwitchConfigurationFailure::description(const Localizer& localizer) const {
  if (problem_) {
    return problem_->message(localizer);
  }
  return localizer.localized(kSwitchInvalidURLText);
}

std::optional<AppSwitchConfigurationFailure> switchConfigurationFailure(const AppMapping& mapping) {
  // Read in place: a digit press runs this check and must not allocate on its way to a switch.
  const FileURL* url = mapping.resolution.resolvedURLIfAny();
  if (url == nullptr) {
    // A mapping without a launch URL always has a problem to name.
    return AppSwitchConfigurationFailure::unresolved(*mapping.problem());
  }
  // A FileURL is a file URL with an absolute path by construction; what remains to check is
  // that it names a bundle.
  if (!url->path().empty() && url->hasPathExtension("app")) {
    return std::nullopt;
  }
  return AppSwitchConfigurationFailure::invalidResolvedURL(*url);
}

} // namespace quenby

std::size_t std::hash<quenby::AppSwitchConfigurationFailure>::operator()(
    const quenby::AppSwitchConfigurationFailure& failure) const noexcept {
  std::size_t seed = 0;
  quenby::hashCombine(seed, static_cast<int>(failure.kind()));
  if (const auto& problem = failure.problem()) {
    const bool ambiguous = problem->kind() == quenby::ApplicationResolutionProblem::Kind::ambiguous;
    quenby::hashCombine(seed, ambiguous ? 1 : 0);
    if (ambiguous) {
      quenby::hashCombine(seed, problem->candidatePaths().size());
      for (const auto& candidate : problem->candidatePaths()) {
        quenby::hashCombine(seed, candidate);
      }
    }
  } else {
    quenby::hashCombine(seed, *failure.invalidURL());
  }
  return seed;
}
