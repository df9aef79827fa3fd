#pragma once

#include "shortcuts/running/ApplicationIconFileLocator.hpp"
#include "shortcuts/running/ApplicationIconLoading.hpp"

#include <cstdint>
#include <span>

namespace quenby {

/// Loads an application's icon without any imaging library: it takes the largest PNG image out
/// of the bundle's ".icns" icon file and hands it on as it is. Icon files whose images are all
/// in other encodings (raw bitmaps, JPEG 2000) give no icon.
///
/// Safe on any thread as long as `fileSystem` and `decoder` are; it keeps no state of its own.
class IcnsApplicationIconLoader final : public ApplicationIconLoading {
public:
  /// Larger icon files are refused rather than loaded; real ones stay well below.
  static constexpr std::uint64_t kMaximumIconFileBytes = 32 * 1024 * 1024;

  IcnsApplicationIconLoader(std::shared_ptr<const FileSystem> fileSystem,
                            std::shared_ptr<const PropertyListDecoding> decoder)
      : locator_(std::move(fileSystem), std::move(decoder)) {}

  [[nodiscard]] std::optional<PreparedApplicationIcon>
  loadIcon(const FileURL& bundleURL) const override;

  /// The PNG image with the most pixels among the entries of an ".icns" file (ties: the first),
  /// sized by its header. Absent for anything that is not a complete, well-formed icon file
  /// holding at least one PNG image; no byte outside `icnsBytes` is ever read.
  [[nodiscard]] static std::optional<PreparedApplicationIcon>
  largestPNGImage(std::span<const std::uint8_t> icnsBytes);

private:
  ApplicationIconFileLocator locator_;
};

} // namespace quenby
