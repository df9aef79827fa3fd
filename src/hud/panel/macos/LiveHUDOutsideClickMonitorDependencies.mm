// Threading: main thread only. AppKit calls both kinds of monitor on the main thread, the local
// one while dispatching our own events, the global one for events sent to other applications.
//
// Lifetime: each token holds its monitor object strongly; the monitor is installed until
// removed through `removeMonitor`, which the outside-click monitor always does before dropping
// the token. The handlers are copied into the monitors' blocks.
//
// Guarantee: converts and forwards only. The local monitor returns whatever the handler hands
// back (the event itself: the click is never swallowed); the global monitor cannot change an
// event at all.

#include "hud/panel/macos/LiveHUDOutsideClickMonitorDependencies.hpp"

#import <AppKit/AppKit.h>
#include <memory>

namespace quenby {

namespace {

struct MonitorHolder {
  id monitor;
};

HUDEventMonitorToken tokenFor(id _Nullable monitor) {
  if (monitor == nil) {
    return nullptr;
  }
  return std::make_shared<MonitorHolder>(MonitorHolder{monitor});
}

HUDMonitoredEvent monitored(NSEvent* event) {
  return {static_cast<std::uint64_t>(event.type), (__bridge const void*)event};
}

} // namespace

HUDOutsideClickMonitorDependencies makeLiveHUDOutsideClickMonitorDependencies() {
  using Dependencies = HUDOutsideClickMonitorDependencies;
  return {
      .addLocalMonitor =
          [](std::uint64_t mask, Dependencies::LocalHandler handler) {
            return tokenFor([NSEvent
                addLocalMonitorForEventsMatchingMask:static_cast<NSEventMask>(mask)
                                             handler:^NSEvent* _Nullable(NSEvent* event) {
                                               const void* passed = handler(monitored(event));
                                               return (__bridge NSEvent*)passed;
                                             }]);
          },
      .addGlobalMonitor =
          [](std::uint64_t mask, Dependencies::GlobalHandler handler) {
            return tokenFor([NSEvent
                addGlobalMonitorForEventsMatchingMask:static_cast<NSEventMask>(mask)
                                              handler:^(NSEvent* event) {
                                                handler(monitored(event));
                                              }]);
          },
      .removeMonitor =
          [](const HUDEventMonitorToken& token) {
            if (token) {
              [NSEvent removeMonitor:static_cast<MonitorHolder*>(token.get())->monitor];
            }
          },
      .screenPoint =
          [](HUDMonitoredEvent monitoredEvent) {
            NSEvent* event = (__bridge NSEvent*)monitoredEvent.handle;
            NSPoint point = event.locationInWindow;
            // An event of another application's window arrives with no window of ours: its
            // location is already on the screen.
            if (NSWindow* window = event.window) {
              point = [window convertPointToScreen:point];
            }
            return Point{point.x, point.y};
          },
  };
}

} // namespace quenby
