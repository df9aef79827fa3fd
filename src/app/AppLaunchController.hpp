#pragma once

#include "app/AppCoordinating.hpp"
#include "app/AppLaunchContext.hpp"
#include "app/StatusItemPresenting.hpp"
#include "app/menu/MenuBarExtraStore.hpp"

#include <functional>
#include <memory>

namespace quenby {

/// The application delegate's decisions, kept out of the platform's delegate class so that they
/// run under test: one coordinator per process, the status item only outside a test host and only
/// over a coordinator that has a menu to show, the offer to move into the Applications folder
/// only outside a test host and after everything started, and an orderly teardown.
class AppLaunchController {
public:
  using CoordinatorFactory = std::function<std::unique_ptr<AppCoordinating>()>;
  /// Given the store the status item shows; the item is removed before the store goes.
  using StatusItemFactory =
      std::function<std::unique_ptr<StatusItemPresenting>(MenuBarExtraStore& store)>;

  AppLaunchController(AppLaunchContext launchContext, CoordinatorFactory makeCoordinator,
                      StatusItemFactory makeStatusItemPresenter);
  AppLaunchController(const AppLaunchController&) = delete;
  AppLaunchController& operator=(const AppLaunchController&) = delete;
  ~AppLaunchController();

  /// A second delivery is ignored.
  void applicationDidFinishLaunching();
  void applicationWillTerminate();
  /// The Settings command; does nothing before launch has finished or after termination.
  void showSettings();
  /// Opening the application again while it runs (Finder, the Dock, Spotlight) shows Settings.
  /// Returns whether the platform should still do its own reopen handling: only when the request
  /// found nothing running to take it, before launch has finished or after termination.
  [[nodiscard]] bool handleReopen();

  [[nodiscard]] const AppLaunchContext& launchContext() const { return launchContext_; }
  [[nodiscard]] AppCoordinating* coordinator() const { return coordinator_.get(); }
  [[nodiscard]] bool hasStatusItem() const { return statusItemPresenter_ != nullptr; }

private:
  CoordinatorFactory makeCoordinator_;
  StatusItemFactory makeStatusItemPresenter_;
  std::unique_ptr<AppCoordinating> coordinator_;
  std::unique_ptr<StatusItemPresenting> statusItemPresenter_;
  AppLaunchContext launchContext_;
};

} // namespace quenby
