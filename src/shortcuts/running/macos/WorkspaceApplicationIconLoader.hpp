#pragma once

#include "shortcuts/running/ApplicationIconFileLocator.hpp"
#include "shortcuts/running/ApplicationIconLoading.hpp"

namespace quenby {

/// An application's icon as AppKit draws it: the bundle's own icon file when it names one,
/// otherwise the workspace's icon for the bundle, drawn into a 216 × 216 pixel bitmap of 8-bit
/// RGBA with premultiplied alpha in the sRGB colour space.
///
/// Safe on any thread as long as `fileSystem` and `decoder` are; it keeps no state of its own.
class WorkspaceApplicationIconLoader final : public ApplicationIconLoading {
public:
  /// The bitmap's side, in pixels rather than points: one bitmap serves every screen scale, and
  /// the views scale it as they draw.
  static constexpr int kPixels = 216;

  WorkspaceApplicationIconLoader(std::shared_ptr<const FileSystem> fileSystem,
                                 std::shared_ptr<const PropertyListDecoding> decoder)
      : locator_(std::move(fileSystem), std::move(decoder)) {}

  [[nodiscard]] std::optional<PreparedApplicationIcon>
  loadIcon(const FileURL& bundleURL) const override;

private:
  ApplicationIconFileLocator locator_;
};

} // namespace quenby
