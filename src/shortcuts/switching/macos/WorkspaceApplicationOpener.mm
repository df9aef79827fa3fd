// Opens an application bundle through the shared NSWorkspace with activation. Call on the main
// thread. The workspace runs its completion handler once, on a concurrent queue; the handler only
// takes the error's text and hops to the main queue, where the completion runs, exactly once, and
// only while the opener still exists (the handler holds it weakly, through its lifetime guard), so
// a completion arriving after teardown changes nothing. The running application handed back is
// not used: opening is the whole request.

#include "shortcuts/switching/macos/WorkspaceApplicationOpener.hpp"

#import "base/macos/FoundationPropertyList.h"

#import <AppKit/AppKit.h>
#include <dispatch/dispatch.h>
#include <utility>

namespace quenby {

void WorkspaceApplicationOpener::openApplication(const FileURL& url, Completion completion) {
  const Completion guarded = lifetime_.weak(std::move(completion));
  @autoreleasepool {
    NSString* path = foundationString(url.path());
    if (path == nil) {
      guarded(std::string("The application's path is not valid UTF-8: ") + url.path());
      return;
    }
    NSWorkspaceOpenConfiguration* configuration = [NSWorkspaceOpenConfiguration configuration];
    configuration.activates = YES;
    [NSWorkspace.sharedWorkspace
        openApplicationAtURL:[NSURL fileURLWithPath:path isDirectory:YES]
               configuration:configuration
           completionHandler:^(NSRunningApplication* _Nullable, NSError* _Nullable error) {
             NSString* description = error.localizedDescription;
             dispatch_async(dispatch_get_main_queue(), ^{
               if (error == nil) {
                 guarded(std::nullopt);
                 return;
               }
               auto text = description != nil ? utf8String(description) : std::nullopt;
               guarded(text.value_or("The workspace could not open the application."));
             });
           }];
  }
}

} // namespace quenby
