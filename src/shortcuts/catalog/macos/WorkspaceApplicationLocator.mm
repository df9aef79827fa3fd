// NSWorkspace's lookup of applications by bundle identifier (Launch Services). Any thread (the
// lookup is thread-safe); holds no state.

#include "shortcuts/catalog/macos/WorkspaceApplicationLocator.hpp"

#import "base/macos/FoundationPropertyList.h"

#import <AppKit/AppKit.h>

namespace quenby {

std::vector<FileURL>
WorkspaceApplicationLocator::applicationURLs(const std::string& bundleIdentifier) const {
  std::vector<FileURL> urls;
  @autoreleasepool {
    NSString* identifier = foundationString(bundleIdentifier);
    if (identifier == nil) {
      return urls;
    }
    for (NSURL* url in
         [NSWorkspace.sharedWorkspace URLsForApplicationsWithBundleIdentifier:identifier]) {
      NSString* path = url.fileURL ? url.path : nil;
      if (path == nil) {
        continue;
      }
      if (auto text = utf8String(path)) {
        urls.push_back(FileURL::fromPath(*text));
      }
    }
  }
  return urls;
}

} // namespace quenby
