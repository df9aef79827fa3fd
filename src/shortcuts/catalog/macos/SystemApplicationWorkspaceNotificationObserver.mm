// The workspace notifications after which installed applications may have changed, behind the
// catalog monitor's interface. Register and cancel on the main thread; handlers run on the main
// queue. The token owns the handler and the blocks hold it weakly, because removing an observer
// does not withdraw a delivery already queued.

#include "shortcuts/catalog/macos/SystemApplicationWorkspaceNotificationObserver.hpp"

#import <AppKit/AppKit.h>
#include <memory>
#include <utility>

namespace quenby {

ObservationToken
SystemApplicationWorkspaceNotificationObserver::observe(std::function<void()> handler) {
  auto owned = std::make_shared<std::function<void()>>(std::move(handler));
  std::weak_ptr<std::function<void()>> weakHandler = owned;
  void (^deliver)(NSNotification*) = ^(NSNotification*) {
    if (auto alive = weakHandler.lock()) {
      (*alive)();
    }
  };
  NSNotificationCenter* center = NSWorkspace.sharedWorkspace.notificationCenter;
  NSMutableArray<id<NSObject>>* observers = [NSMutableArray arrayWithCapacity:5];
  for (NSNotificationName name in @[
         NSWorkspaceDidMountNotification, NSWorkspaceDidUnmountNotification,
         NSWorkspaceDidRenameVolumeNotification, NSWorkspaceDidLaunchApplicationNotification,
         NSWorkspaceDidTerminateApplicationNotification
       ]) {
    [observers addObject:[center addObserverForName:name
                                             object:nil
                                              queue:NSOperationQueue.mainQueue
                                         usingBlock:deliver]];
  }
  return ObservationToken([center, observers, owned]() mutable {
    for (id<NSObject> observer in observers) {
      [center removeObserver:observer];
    }
    owned.reset();
  });
}

} // namespace quenby
