#include "shortcuts/switching/AppShortcutAction.hpp"

namespace quenby {

AppShortcutAction AppShortcutAction::decide(const AppMapping& mapping,
                                            bool hidesFrontmostApplication,
                                            const FrontmostApplicationProviding& frontmost) {
  if (auto failure = switchConfigurationFailure(mapping)) {
    return {.kind = Kind::reportFailure, .failure = std::move(failure)};
  }
  if (hidesFrontmostApplication) {
    if (const auto front = frontmost.frontmostBundleIdentifier();
        front && *front == mapping.bundleIdentifier) {
      return {.kind = Kind::hide, .failure = std::nullopt};
    }
  }
  return {.kind = Kind::switchToApplication, .failure = std::nullopt};
}

} // namespace quenby
