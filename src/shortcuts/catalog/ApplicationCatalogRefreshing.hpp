#pragma once

#include "base/FileURL.hpp"

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace quenby {

/// Candidate bundle locations by bundle identifier, as a Spotlight query reports them.
using ApplicationCandidateMap = std::map<std::string, std::vector<FileURL>, std::less<>>;

/// Re-verifies the installed copies of every application that mappings asked about.
class ApplicationCatalogRefreshing {
public:
  using CandidateMap = ApplicationCandidateMap;

  virtual ~ApplicationCatalogRefreshing() = default;
  /// Takes the candidates of an identifier from `spotlightCandidates` when it has an entry for
  /// it, and otherwise asks the system's locator (so with null, the locator is asked for all).
  virtual void refreshCatalog(const CandidateMap* spotlightCandidates) = 0;
  /// Rises whenever the verified installed copies change.
  [[nodiscard]] virtual std::uint64_t catalogRevision() const = 0;
};

} // namespace quenby
