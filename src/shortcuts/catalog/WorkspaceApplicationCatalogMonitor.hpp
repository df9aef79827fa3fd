#pragma once

#include "base/LifetimeGuard.hpp"
#include "base/MainScheduler.hpp"
#include "shortcuts/catalog/ApplicationCatalogDistributedObserving.hpp"
#include "shortcuts/catalog/ApplicationCatalogMonitoring.hpp"
#include "shortcuts/catalog/ApplicationCatalogRefreshing.hpp"
#include "shortcuts/catalog/ApplicationSpotlightQuerying.hpp"
#include "shortcuts/catalog/ApplicationWorkspaceNotificationObserving.hpp"

#include <map>
#include <memory>
#include <optional>

namespace quenby {

/// Keeps the application catalog fresh while running: it refreshes on Spotlight's results (with
/// them as candidates), on workspace and Launch Services notifications, and every half second,
/// and tells its observers once per new catalog revision however many triggers led to it.
///
/// Main thread only. Every collaborator must outlive the monitor; callbacks handed to them hold
/// the monitor weakly.
class WorkspaceApplicationCatalogMonitor final : public ApplicationCatalogMonitoring {
public:
  static constexpr Duration kPollInterval = std::chrono::milliseconds(500);

  WorkspaceApplicationCatalogMonitor(ApplicationCatalogRefreshing& catalog,
                                     ApplicationSpotlightQuerying& query,
                                     ApplicationWorkspaceNotificationObserving& workspaceCenter,
                                     ApplicationCatalogDistributedObserving& distributedObserver,
                                     MainScheduler& scheduler);
  WorkspaceApplicationCatalogMonitor(const WorkspaceApplicationCatalogMonitor&) = delete;
  WorkspaceApplicationCatalogMonitor& operator=(const WorkspaceApplicationCatalogMonitor&) = delete;
  ~WorkspaceApplicationCatalogMonitor() override;

  void start() override;
  void stop() override;
  [[nodiscard]] ObservationToken observe(std::function<void()> handler) override;

  [[nodiscard]] bool isRunning() const { return isRunning_; }

private:
  void refresh(const ApplicationCandidateMap* spotlightCandidates);

  using Observers = std::map<std::uint64_t, std::function<void()>>;

  /// Shared with the tokens, which hold it weakly, so a token may outlive the monitor.
  std::shared_ptr<Observers> observers_ = std::make_shared<Observers>();
  std::uint64_t nextObserverId_ = 0;
  ApplicationCatalogRefreshing& catalog_;
  ApplicationSpotlightQuerying& query_;
  ApplicationWorkspaceNotificationObserving& workspaceCenter_;
  ApplicationCatalogDistributedObserving& distributedObserver_;
  MainScheduler& scheduler_;
  ObservationToken workspaceToken_;
  ObservationToken distributedToken_;
  ObservationToken pollToken_;
  std::optional<std::uint64_t> deliveredRevision_;
  bool isRunning_ = false;
  LifetimeGuard guard_;
};

} // namespace quenby
