#include "shortcuts/mapping/AppMapping.hpp"

#include "base/Hashing.hpp"

namespace quenby {

std::optional<ApplicationResolutionProblem> AppMapping::problem() const {
  switch (resolution.kind()) {
  case ApplicationResolution::Kind::resolved:
    return std::nullopt;
  case ApplicationResolution::Kind::ambiguous:
    return ApplicationResolutionProblem::ambiguous(resolution.candidatePaths());
  case ApplicationResolution::Kind::notFound:
    break;
  }
  return ApplicationResolutionProblem::notFound();
}

} // namespace quenby

std::size_t
std::hash<quenby::AppMapping>::operator()(const quenby::AppMapping& mapping) const noexcept {
  std::size_t seed = 0;
  quenby::hashCombine(seed, mapping.displayName);
  quenby::hashCombine(seed, mapping.bundleIdentifier);
  quenby::hashCombine(seed, mapping.lastKnownURL);
  quenby::hashCombine(seed, mapping.resolution);
  quenby::hashCombine(seed, mapping.source);
  return seed;
}
