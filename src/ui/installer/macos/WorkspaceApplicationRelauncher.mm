// Handing over to another copy of the application, through NSWorkspace and NSApplication.
//
// Threading: call on the main thread. The workspace answers a launch on a queue of its own; the
// answer hops to the main queue before the completion runs. Quitting is queued on the main queue.
//
// Lifetime: no state. The completion travels inside the blocks and is called once; the core hands
// in one that holds its owner weakly, so an answer after teardown does nothing.
//
// Guarantee: a new process is launched even though one with the same bundle identifier (this
// one) runs, and the completion never runs beneath the call that asked; termination (the
// delegate's applicationWillTerminate:, which stops every feature) never runs beneath its caller.

#include "ui/installer/macos/WorkspaceApplicationRelauncher.hpp"

#import "base/macos/FoundationPropertyList.h"

#import <AppKit/AppKit.h>
#include <dispatch/dispatch.h>
#include <utility>

namespace quenby {

bool WorkspaceApplicationRelauncher::isRunning(const std::string& bundlePath) const {
  NSString* path = foundationString(bundlePath);
  if (path == nil) {
    return false;
  }
  for (NSRunningApplication* application in NSWorkspace.sharedWorkspace.runningApplications) {
    NSString* launchedFrom = application.bundleURL.path;
    if (!application.terminated && launchedFrom != nil && [launchedFrom isEqualToString:path]) {
      return true;
    }
  }
  return false;
}

void WorkspaceApplicationRelauncher::openNewInstance(const std::string& bundlePath,
                                                     Completion completion) {
  NSString* path = foundationString(bundlePath);
  if (path == nil) {
    dispatch_async(dispatch_get_main_queue(), ^{
      completion("The application's path cannot be used.");
    });
    return;
  }
  NSWorkspaceOpenConfiguration* configuration = [NSWorkspaceOpenConfiguration configuration];
  configuration.createsNewApplicationInstance = YES;
  [NSWorkspace.sharedWorkspace
      openApplicationAtURL:[NSURL fileURLWithPath:path isDirectory:YES]
             configuration:configuration
         completionHandler:^(NSRunningApplication* _Nullable application,
                             NSError* _Nullable error) {
           NSString* description =
               application == nil && error != nil ? error.localizedDescription : nil;
           const bool launched = application != nil;
           dispatch_async(dispatch_get_main_queue(), ^{
             if (launched) {
               completion(std::nullopt);
               return;
             }
             auto text = description != nil ? utf8String(description) : std::nullopt;
             completion(text ? *text : std::string("The application did not open."));
           });
         }];
}

void WorkspaceApplicationRelauncher::quit() {
  dispatch_async(dispatch_get_main_queue(), ^{
    [NSApp terminate:nil];
  });
}

} // namespace quenby
