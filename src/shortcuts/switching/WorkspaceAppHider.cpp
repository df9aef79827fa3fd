#include "shortcuts/switching/WorkspaceAppHider.hpp"

namespace quenby {

bool WorkspaceAppHider::hideIfFrontmost(const AppMapping& mapping) {
  const auto target = frontmostApplication_();
  if (!target) {
    return false;
  }
  const auto bundleIdentifier = target->bundleIdentifier();
  if (!bundleIdentifier || *bundleIdentifier != mapping.bundleIdentifier) {
    return false;
  }
  return target->hide();
}

} // namespace quenby
