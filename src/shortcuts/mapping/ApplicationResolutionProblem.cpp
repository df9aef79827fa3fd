#include "shortcuts/mapping/ApplicationResolutionProblem.hpp"

#include "base/StringFormatter.hpp"

namespace quenby {

std::string ApplicationResolutionProblem::message(const Localizer& localizer) const {
  if (kind_ == Kind::notFound) {
    return localizer.localized(kMappingNotFoundText);
  }
  std::string paths;
  for (const auto& url : candidatePaths_) {
    if (!paths.empty()) {
      paths.append(", ");
    }
    paths.append(url.path());
  }
  return formatLocalized(localizer.localized(kMappingAmbiguousText), {paths});
}

} // namespace quenby
