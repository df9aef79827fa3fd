// The distributed notification centre behind the core's observer interface. Register and cancel
// on the main thread; handlers run on the main queue. The token owns the handler and the block
// holds it weakly, because removing the observer does not withdraw a delivery already queued.

#include "base/macos/DistributedNotificationCenter.hpp"

#import "base/macos/FoundationPropertyList.h"

#import <Foundation/Foundation.h>
#include <memory>
#include <utility>

namespace quenby {

ObservationToken DistributedNotificationCenter::observe(const std::string& name,
                                                        std::function<void()> handler) {
  NSString* notificationName = foundationString(name);
  if (notificationName == nil) {
    return {};
  }
  auto owned = std::make_shared<std::function<void()>>(std::move(handler));
  std::weak_ptr<std::function<void()>> weakHandler = owned;
  NSDistributedNotificationCenter* center = [NSDistributedNotificationCenter defaultCenter];
  id<NSObject> observer = [center addObserverForName:notificationName
                                              object:nil
                                               queue:NSOperationQueue.mainQueue
                                          usingBlock:^(NSNotification*) {
                                            if (auto alive = weakHandler.lock()) {
                                              (*alive)();
                                            }
                                          }];
  return ObservationToken([center, observer, owned]() mutable {
    [center removeObserver:observer];
    owned.reset();
  });
}

} // namespace quenby
