#pragma once

#include "app/AppShellPlatform.hpp"
#include "base/BasePlatform.hpp"
#include "data/DataPlatform.hpp"
#include "hud/HUDPlatform.hpp"
#include "shortcuts/ShortcutsPlatform.hpp"
#include "ui/UIPlatform.hpp"

namespace quenby {

/// Every adapter through which the core reaches the platform, one group per subsystem. macOS
/// fills each group with system adapters, the simulation with simulated ones, so the same graph
/// runs on both. A subsystem that needs a new adapter adds it to its own group.
struct PlatformServices {
  BasePlatform base;
  AppShellPlatform app;
  ShortcutsPlatform shortcuts;
  DataPlatform data;
  HUDPlatform hud;
  UIPlatform ui;

  /// Harmless adapters throughout.
  [[nodiscard]] static PlatformServices inert() {
    return {.base = BasePlatform::inert(),
            .app = AppShellPlatform::inert(),
            .shortcuts = ShortcutsPlatform::inert(),
            .data = DataPlatform::inert(),
            .hud = HUDPlatform::inert(),
            .ui = UIPlatform::inert()};
  }
};

} // namespace quenby
