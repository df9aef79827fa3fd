#pragma once

#include "base/FileSystem.hpp"
#include "base/PropertyListDecoding.hpp"
#include "shortcuts/running/ApplicationIconLoading.hpp"
#include "shortcuts/running/ApplicationIconWorkScheduling.hpp"
#include "shortcuts/running/RunningApplicationListing.hpp"

#include <memory>

namespace quenby {

/// The shared workspace's running applications and their launch and termination notifications.
/// Call on the main thread.
[[nodiscard]] std::shared_ptr<RunningApplicationListing> makeWorkspaceRunningApplications();

/// Icons drawn by AppKit: the bundle's icon file, else the workspace's icon for the bundle. The
/// file system and decoder are used from the icon queue, so they must be safe there.
[[nodiscard]] std::shared_ptr<ApplicationIconLoading>
makeWorkspaceApplicationIconLoader(std::shared_ptr<const FileSystem> fileSystem,
                                   std::shared_ptr<const PropertyListDecoding> decoder);

/// A private serial dispatch queue for icon loads, delivering on the main queue. Call on the
/// main thread.
[[nodiscard]] std::shared_ptr<ApplicationIconWorkScheduling> makeTaskApplicationIconWorkScheduler();

} // namespace quenby
