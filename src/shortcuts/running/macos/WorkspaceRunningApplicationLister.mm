// The shared workspace's running applications, behind the running-application monitor's
// interface. Main thread only: the workspace updates `runningApplications` on the main thread,
// and the notifications are delivered on the main queue. The token owns the handler and the
// blocks hold it weakly, because removing an observer does not withdraw a delivery already
// queued. Each listing is copied out whole, so nothing Objective-C outlives the call.

#include "shortcuts/running/macos/WorkspaceRunningApplicationLister.hpp"

#import "base/macos/FoundationPropertyList.h"

#import <AppKit/AppKit.h>
#include <memory>
#include <utility>

namespace quenby {

std::vector<RunningApplicationProcessSnapshot>
WorkspaceRunningApplicationLister::runningApplications() const {
  @autoreleasepool {
    NSArray<NSRunningApplication*>* applications = NSWorkspace.sharedWorkspace.runningApplications;
    std::vector<RunningApplicationProcessSnapshot> processes;
    processes.reserve(applications.count);
    for (NSRunningApplication* application in applications) {
      NSString* identifier = application.bundleIdentifier;
      processes.push_back({
          .bundleIdentifier = identifier == nil ? std::nullopt : utf8String(identifier),
          .isTerminated = application.terminated == YES,
      });
    }
    return processes;
  }
}

ObservationToken
WorkspaceRunningApplicationLister::observeLaunchesAndTerminations(std::function<void()> handler) {
  auto owned = std::make_shared<std::function<void()>>(std::move(handler));
  std::weak_ptr<std::function<void()>> weakHandler = owned;
  void (^deliver)(NSNotification*) = ^(NSNotification*) {
    if (auto alive = weakHandler.lock()) {
      (*alive)();
    }
  };
  NSNotificationCenter* center = NSWorkspace.sharedWorkspace.notificationCenter;
  NSMutableArray<id<NSObject>>* observers = [NSMutableArray arrayWithCapacity:2];
  for (NSNotificationName name in @[
         NSWorkspaceDidLaunchApplicationNotification, NSWorkspaceDidTerminateApplicationNotification
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
