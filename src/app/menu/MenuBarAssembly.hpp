#pragma once

#include "app/AppShellAssembly.hpp"
#include "app/AppShellPlatform.hpp"
#include "app/menu/MenuBarController.hpp"
#include "app/menu/MenuBarExtraStore.hpp"
#include "base/BasePlatform.hpp"
#include "data/DataAssembly.hpp"
#include "hud/HUDAssembly.hpp"
#include "shortcuts/ShortcutsAssembly.hpp"

#include <functional>

namespace quenby {

/// The menu bar's feature objects: the store the status item shows and the controller that
/// fills it from every other feature's health. Built after the features it reports on, which
/// must outlive it, as must everything else it is given.
class MenuBarAssembly {
public:
  MenuBarAssembly(const BasePlatform& base, const AppShellPlatform& platform,
                  AppShellAssembly& shell, DataAssembly& data, ShortcutsAssembly& shortcuts,
                  HUDAssembly& hud, std::function<void()> showSettings);
  MenuBarAssembly(const MenuBarAssembly&) = delete;
  MenuBarAssembly& operator=(const MenuBarAssembly&) = delete;

  void synchronizeMenu() { controller_.start(); }
  void stopMenu() { controller_.stop(); }

  [[nodiscard]] MenuBarExtraStore& store() { return store_; }
  [[nodiscard]] MenuBarController& controller() { return controller_; }

private:
  MenuBarExtraStore store_;
  MenuBarController controller_;
};

} // namespace quenby
