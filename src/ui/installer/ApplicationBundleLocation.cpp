#include "ui/installer/ApplicationBundleLocation.hpp"

#include <algorithm>
#include <cctype>
#include <string>

namespace quenby {
namespace {

bool sameLetters(char left, char right) {
  return std::tolower(static_cast<unsigned char>(left)) ==
         std::tolower(static_cast<unsigned char>(right));
}

// Strictly inside `folder`: "/ApplicationsOld/…" and "/Applications" itself are not.
bool isInside(std::string_view path, std::string_view folder) {
  if (folder.empty() || path.size() <= folder.size() + 1 || path[folder.size()] != '/') {
    return false;
  }
  return std::equal(folder.begin(), folder.end(), path.begin(), sameLetters);
}

} // namespace

ApplicationBundleLocation classifyApplicationBundleLocation(std::string_view bundlePath,
                                                            std::string_view homeDirectory) {
  // Gatekeeper mounts translocated copies below the temporary folders; nothing above the
  // "AppTranslocation" component says where the user keeps the original.
  if (bundlePath.find("/AppTranslocation/") != std::string_view::npos) {
    return ApplicationBundleLocation::translocated;
  }
  while (homeDirectory.size() > 1 && homeDirectory.back() == '/') {
    homeDirectory.remove_suffix(1);
  }
  if (isInside(bundlePath, "/Applications") ||
      (!homeDirectory.empty() &&
       isInside(bundlePath, std::string(homeDirectory) + "/Applications"))) {
    return ApplicationBundleLocation::applicationsFolder;
  }
  if (isInside(bundlePath, "/Volumes")) {
    return ApplicationBundleLocation::otherVolume;
  }
  return ApplicationBundleLocation::elsewhere;
}

} // namespace quenby
