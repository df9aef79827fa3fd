#include "shortcuts/catalog/WorkspaceApplicationCatalogMonitor.hpp"

namespace quenby {

WorkspaceApplicationCatalogMonitor::WorkspaceApplicationCatalogMonitor(
    ApplicationCatalogRefreshing& catalog, ApplicationSpotlightQuerying& query,
    ApplicationWorkspaceNotificationObserving& workspaceCenter,
    ApplicationCatalogDistributedObserving& distributedObserver, MainScheduler& scheduler)
    : catalog_(catalog), query_(query), workspaceCenter_(workspaceCenter),
      distributedObserver_(distributedObserver), scheduler_(scheduler) {}

WorkspaceApplicationCatalogMonitor::~WorkspaceApplicationCatalogMonitor() { stop(); }

void WorkspaceApplicationCatalogMonitor::start() {
  if (isRunning_) {
    return;
  }
  isRunning_ = true;
  const auto refreshWithoutCandidates = guard_.weak([this] { refresh(nullptr); });
  workspaceToken_ = workspaceCenter_.observe(refreshWithoutCandidates);
  distributedToken_ = distributedObserver_.observe(refreshWithoutCandidates);
  query_.start(
      guard_.weak([this](const ApplicationCandidateMap& candidates) { refresh(&candidates); }));
  refresh(nullptr);
  // A change delivered during the first refresh may have stopped the monitor already.
  if (isRunning_) {
    pollToken_ = scheduler_.scheduleRepeating(kPollInterval, refreshWithoutCandidates);
  }
}

void WorkspaceApplicationCatalogMonitor::stop() {
  if (!isRunning_) {
    return;
  }
  isRunning_ = false;
  workspaceToken_.cancel();
  distributedToken_.cancel();
  pollToken_.cancel();
  query_.stop();
}

ObservationToken WorkspaceApplicationCatalogMonitor::observe(std::function<void()> handler) {
  const std::uint64_t id = nextObserverId_++;
  observers_->emplace(id, std::move(handler));
  return ObservationToken([observers = std::weak_ptr<Observers>(observers_), id] {
    if (const auto alive = observers.lock()) {
      alive->erase(id);
    }
  });
}

void WorkspaceApplicationCatalogMonitor::refresh(
    const ApplicationCandidateMap* spotlightCandidates) {
  if (!isRunning_) {
    return; // a late delivery after stop
  }
  catalog_.refreshCatalog(spotlightCandidates);
  const std::uint64_t revision = catalog_.catalogRevision();
  if (deliveredRevision_ == revision) {
    return;
  }
  deliveredRevision_ = revision;
  // An observer may end its own or another's registration while hearing the news, or stop the
  // monitor: each is looked up again just before it is called.
  const std::uint64_t lastId = nextObserverId_;
  for (auto next = observers_->begin(); next != observers_->end() && next->first < lastId;) {
    const std::uint64_t id = next->first;
    auto handler = next->second;
    handler();
    next = observers_->upper_bound(id);
  }
}

} // namespace quenby
