// Quitting through the shared application.
//
// Threading: call on the main thread; the request runs on the main queue's next turn.
//
// Lifetime: no state; the queued request holds nothing of ours.
//
// Guarantee: termination (the delegate's applicationWillTerminate:, which stops every feature and
// frees the runtime graph) never runs beneath the caller, typically a menu command still on the
// stack.

#include "app/macos/SystemApplicationTerminator.hpp"

#import <AppKit/AppKit.h>
#include <dispatch/dispatch.h>

namespace quenby {

void SystemApplicationTerminator::terminate() {
  dispatch_async(dispatch_get_main_queue(), ^{
    [NSApp terminate:nil];
  });
}

} // namespace quenby
