#pragma once

#include <string_view>

namespace quenby {

/// Where the running application's bundle sits, as far as moving it matters.
enum class ApplicationBundleLocation {
  /// Inside /Applications or the user's own ~/Applications, at any depth: installed.
  applicationsFolder,
  /// On another volume under /Volumes: typically a read-only disk image.
  otherVolume,
  /// A read-only copy Gatekeeper made of a quarantined bundle; the original cannot be found.
  translocated,
  /// Anywhere else on the start-up volume: Downloads, the desktop, a build folder.
  elsewhere,
};

/// Decides from the path alone. Folder names compare without regard to case, as the default
/// file system does; `homeDirectory` may be empty when it is not known.
[[nodiscard]] ApplicationBundleLocation
classifyApplicationBundleLocation(std::string_view bundlePath, std::string_view homeDirectory);

} // namespace quenby
