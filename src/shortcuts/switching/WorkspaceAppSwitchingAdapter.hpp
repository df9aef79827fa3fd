#pragma once

#include "base/LifetimeGuard.hpp"
#include "shortcuts/catalog/ApplicationCatalogRefreshing.hpp"
#include "shortcuts/catalog/ApplicationResolving.hpp"
#include "shortcuts/switching/AppSwitching.hpp"
#include "shortcuts/switching/ApplicationOpening.hpp"
#include "shortcuts/switching/ApplicationPresenceChecking.hpp"

namespace quenby {

/// Opens a mapping's application where the catalog last found it. When that fails in any way (the
/// catalog had no single copy, the bundle is gone, or the workspace refused), it refreshes the
/// catalog once, asking Launch Services afresh, and tries the new answer: an application that
/// moved or was reinstalled since the last refresh still opens on the first press. Only the
/// second attempt's failure is reported. Main thread only; every reference must outlive it.
class WorkspaceAppSwitchingAdapter final : public AppSwitching {
public:
  WorkspaceAppSwitchingAdapter(ApplicationResolving& resolver,
                               ApplicationCatalogRefreshing& catalog, ApplicationOpening& opener,
                               const ApplicationPresenceChecking& presenceChecker)
      : resolver_(resolver), catalog_(catalog), opener_(opener), presenceChecker_(presenceChecker) {
  }

  void switchToApplication(const AppMapping& mapping, Completion completion) override;

private:
  void retryAfterRefresh(const AppMapping& mapping, Completion completion);

  ApplicationResolving& resolver_;
  ApplicationCatalogRefreshing& catalog_;
  ApplicationOpening& opener_;
  const ApplicationPresenceChecking& presenceChecker_;
  LifetimeGuard lifetime_;
};

} // namespace quenby
