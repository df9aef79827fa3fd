// Builds the running-application and icon adapters. Call on the main thread; each adapter is
// shared with the runtime graph and lives as long as it does. Nothing starts here: the monitor
// subscribes when it starts, and the icon queue idles until the cache schedules a load.

#include "shortcuts/running/macos/LiveRunningApplicationAdapters.hpp"

#include "shortcuts/running/macos/TaskApplicationIconWorkScheduler.hpp"
#include "shortcuts/running/macos/WorkspaceApplicationIconLoader.hpp"
#include "shortcuts/running/macos/WorkspaceRunningApplicationLister.hpp"

#include <utility>

namespace quenby {

std::shared_ptr<RunningApplicationListing> makeWorkspaceRunningApplications() {
  return std::make_shared<WorkspaceRunningApplicationLister>();
}

std::shared_ptr<ApplicationIconLoading>
makeWorkspaceApplicationIconLoader(std::shared_ptr<const FileSystem> fileSystem,
                                   std::shared_ptr<const PropertyListDecoding> decoder) {
  return std::make_shared<WorkspaceApplicationIconLoader>(std::move(fileSystem),
                                                          std::move(decoder));
}

std::shared_ptr<ApplicationIconWorkScheduling> makeTaskApplicationIconWorkScheduler() {
  return std::make_shared<TaskApplicationIconWorkScheduler>();
}

} // namespace quenby
