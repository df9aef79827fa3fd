#pragma once

#include "shortcuts/catalog/ApplicationCatalogRefreshing.hpp"

#include <functional>

namespace quenby {

/// A live Spotlight query for every application bundle on the computer. Each time it finishes
/// gathering or its results change, the handler receives every result's bundle identifier and
/// location, on the main thread.
class ApplicationSpotlightQuerying {
public:
  using ResultsHandler = std::function<void(const ApplicationCandidateMap&)>;

  virtual ~ApplicationSpotlightQuerying() = default;
  virtual void start(ResultsHandler resultsHandler) = 0;
  /// Stops the query; no result is delivered afterwards.
  virtual void stop() = 0;
};

/// The inert query: never finds anything.
class InertApplicationSpotlightQuery final : public ApplicationSpotlightQuerying {
public:
  void start(ResultsHandler) override {}
  void stop() override {}
};

} // namespace quenby
