#pragma once

#include "base/ObservationToken.hpp"
#include "shortcuts/running/RunningApplicationListing.hpp"
#include "shortcuts/switching/ApplicationOpening.hpp"
#include "shortcuts/switching/ApplicationPresenceChecking.hpp"
#include "shortcuts/switching/FrontmostApplicationProviding.hpp"
#include "shortcuts/switching/HidableApplication.hpp"
#include "simulation/ScenarioEventRecorder.hpp"
#include "simulation/SimulatedWorld.hpp"

#include <cstdint>
#include <map>

namespace quenby {

/// One process's view of the simulated workspace: opening prints `open`, then after the open
/// latency `opened`, and brings the application to the front; hiding prints `hide`. `world` and
/// `recorder` must outlive it. An open still pending when the process ends never completes.
class SimulatedWorkspaceAdapters final : public ApplicationOpening,
                                         public ApplicationPresenceChecking,
                                         public FrontmostApplicationProviding,
                                         public RunningApplicationListing {
public:
  SimulatedWorkspaceAdapters(SimulatedWorld& world, const ScenarioEventRecorder& recorder)
      : world_(world), recorder_(recorder) {}

  void openApplication(const FileURL& url, Completion completion) override;
  [[nodiscard]] bool applicationExists(const FileURL& url) const override;
  [[nodiscard]] std::optional<std::string> frontmostBundleIdentifier() const override {
    return world_.workspace().frontmost;
  }
  [[nodiscard]] std::vector<RunningApplicationProcessSnapshot> runningApplications() const override;
  [[nodiscard]] ObservationToken
  observeLaunchesAndTerminations(std::function<void()> handler) override {
    return world_.workspace().launchesAndTerminations.add(std::move(handler));
  }
  /// The application in front, which hides unless it is full screen.
  [[nodiscard]] std::unique_ptr<HidableApplication> frontmostHidableApplication();

private:
  void finishOpening(const FileURL& url, const Completion& completion);

  SimulatedWorld& world_;
  const ScenarioEventRecorder& recorder_;
  std::map<std::uint64_t, ObservationToken> pendingOpens_;
  std::uint64_t nextOpen_ = 0;
};

} // namespace quenby
