// The default file manager's existence check. Any thread (the default manager is thread-safe for
// queries); holds no state. A symbolic link to a bundle counts as the bundle, as the workspace
// would open it.

#include "shortcuts/switching/macos/FileManagerApplicationPresenceChecker.hpp"

#import "base/macos/FoundationPropertyList.h"

#import <Foundation/Foundation.h>

namespace quenby {

bool FileManagerApplicationPresenceChecker::applicationExists(const FileURL& url) const {
  @autoreleasepool {
    NSString* path = foundationString(url.path());
    if (path == nil) {
      return false;
    }
    BOOL isDirectory = NO;
    const BOOL exists = [NSFileManager.defaultManager fileExistsAtPath:path
                                                           isDirectory:&isDirectory];
    return exists && isDirectory;
  }
}

} // namespace quenby
