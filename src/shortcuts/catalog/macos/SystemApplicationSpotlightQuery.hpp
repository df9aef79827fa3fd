#pragma once

#include "shortcuts/catalog/ApplicationSpotlightQuerying.hpp"

#include <memory>

namespace quenby {

/// A live NSMetadataQuery over the local computer for application bundles, batching changes for
/// a quarter of a second. Main thread only: the query runs on the main run loop and its results
/// arrive on the main queue. Stopped when destroyed; starting while running does nothing.
class SystemApplicationSpotlightQuery final : public ApplicationSpotlightQuerying {
public:
  SystemApplicationSpotlightQuery();
  SystemApplicationSpotlightQuery(const SystemApplicationSpotlightQuery&) = delete;
  SystemApplicationSpotlightQuery& operator=(const SystemApplicationSpotlightQuery&) = delete;
  ~SystemApplicationSpotlightQuery() override;

  void start(ResultsHandler resultsHandler) override;
  void stop() override;

private:
  struct Running;
  std::unique_ptr<Running> running_;
};

} // namespace quenby
