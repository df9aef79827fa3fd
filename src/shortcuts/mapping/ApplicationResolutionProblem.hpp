#pragma once

#include "base/FileURL.hpp"
#include "base/Localizer.hpp"

#include <string>
#include <vector>

namespace quenby {

inline constexpr LocalizedText kMappingAmbiguousText{
    "diagnostic.mapping.ambiguous",
    "Multiple installed copies match this bundle identifier. Select the intended application "
    "again. Candidates: %@.",
    "%@ is a comma-separated list of file paths."};
inline constexpr LocalizedText kMappingNotFoundText{
    "diagnostic.mapping.not-found",
    "The last-known path is no longer valid and no installed copy could be found. Select the "
    "application again.",
    "Shown when a mapped application can no longer be found."};

/// Why a mapping cannot be launched: the two failing resolutions, explained to the user.
class ApplicationResolutionProblem {
public:
  enum class Kind { ambiguous, notFound };

  [[nodiscard]] static ApplicationResolutionProblem ambiguous(std::vector<FileURL> candidatePaths) {
    return {Kind::ambiguous, std::move(candidatePaths)};
  }
  [[nodiscard]] static ApplicationResolutionProblem notFound() { return {Kind::notFound, {}}; }

  [[nodiscard]] Kind kind() const { return kind_; }
  [[nodiscard]] const std::vector<FileURL>& candidatePaths() const { return candidatePaths_; }
  [[nodiscard]] std::string message(const Localizer& localizer) const;

  friend bool operator==(const ApplicationResolutionProblem&,
                         const ApplicationResolutionProblem&) = default;

private:
  ApplicationResolutionProblem(Kind kind, std::vector<FileURL> candidatePaths)
      : kind_(kind), candidatePaths_(std::move(candidatePaths)) {}

  Kind kind_;
  std::vector<FileURL> candidatePaths_;
};

} // namespace quenby
