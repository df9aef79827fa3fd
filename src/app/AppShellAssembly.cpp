#include "app/AppShellAssembly.hpp"

namespace quenby {

AppShellAssembly::AppShellAssembly(const BasePlatform& base, const AppShellPlatform& platform)
    : platform_(platform), presenter_(*platform.failurePanelFactory),
      reporter_(*base.userDefaults, &presenter_) {}

AppShellAssembly::~AppShellAssembly() {
  // Nothing may reach the presenter while the shell comes down.
  reporter_.setPresenter(nullptr);
}

} // namespace quenby
