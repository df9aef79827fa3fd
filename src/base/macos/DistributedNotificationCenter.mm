// The distributed notification centre behind the core's observer interface.
//
// Threading: register and cancel on the main thread. A distributed notification is delivered on
// the thread that registered for it, so handlers run on the main thread here.
//
// Lifetime: the token owns the handler and the Objective-C observer; the centre does not retain
// its observers. The observer reaches the handler only through a weak reference, so a delivery
// that races with the token's end finds nothing to run, and cancelling removes the observer from
// the centre before the handler is let go.
//
// Guarantee: delivery is immediate even while the application is inactive. AppKit suspends
// distributed delivery for inactive applications and an accessory application is almost never
// active; the default (coalescing) registration would hold Dock and Launch Services changes back
// until a window of ours is activated.

#include "base/macos/DistributedNotificationCenter.hpp"

#import "base/macos/FoundationPropertyList.h"

#import <Foundation/Foundation.h>
#include <memory>
#include <utility>

namespace {

using Handler = std::function<void()>;

} // namespace

@interface QuenbyDistributedNotificationObserver : NSObject
- (instancetype)initWithHandler:(std::weak_ptr<Handler>)handler;
- (void)notificationArrived:(NSNotification*)notification;
@end

@implementation QuenbyDistributedNotificationObserver {
  std::weak_ptr<Handler> _handler;
}

- (instancetype)initWithHandler:(std::weak_ptr<Handler>)handler {
  self = [super init];
  if (self != nil) {
    _handler = std::move(handler);
  }
  return self;
}

- (void)notificationArrived:(NSNotification*)notification {
  // Held by this local, so a handler that drops its own token finishes running.
  if (std::shared_ptr<Handler> alive = _handler.lock()) {
    (*alive)();
  }
}

@end

namespace quenby {

ObservationToken DistributedNotificationCenter::observe(const std::string& name,
                                                        std::function<void()> handler) {
  NSString* notificationName = foundationString(name);
  if (notificationName == nil) {
    return {};
  }
  auto owned = std::make_shared<Handler>(std::move(handler));
  QuenbyDistributedNotificationObserver* observer =
      [[QuenbyDistributedNotificationObserver alloc] initWithHandler:owned];
  NSDistributedNotificationCenter* center = [NSDistributedNotificationCenter defaultCenter];
  [center addObserver:observer
                selector:@selector(notificationArrived:)
                    name:notificationName
                  object:nil
      suspensionBehavior:NSNotificationSuspensionBehaviorDeliverImmediately];
  return ObservationToken([center, observer, notificationName, owned]() mutable {
    [center removeObserver:observer name:notificationName object:nil];
    owned.reset();
  });
}

} // namespace quenby
