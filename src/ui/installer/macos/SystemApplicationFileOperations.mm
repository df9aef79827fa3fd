// The running bundle's location and the file operations of a move, through NSBundle and
// NSFileManager.
//
// Threading: main thread only; every call is synchronous. Copying a bundle of a few megabytes
// takes a moment, which the user just asked for.
//
// Lifetime: no state; the shared file manager is fetched on every call.
//
// Guarantee: each operation either succeeds or returns the error's localised description.

#include "ui/installer/macos/SystemApplicationFileOperations.hpp"

#import "base/macos/FoundationPropertyList.h"

#import <Foundation/Foundation.h>

namespace quenby {
namespace {

NSURL* _Nullable fileURL(const std::string& path) {
  NSString* converted = foundationString(path);
  return converted != nil ? [NSURL fileURLWithPath:converted isDirectory:YES] : nil;
}

std::optional<std::string> failure(BOOL succeeded, NSError* _Nullable error) {
  if (succeeded) {
    return std::nullopt;
  }
  NSString* description = error != nil ? error.localizedDescription : nil;
  auto text = description != nil ? utf8String(description) : std::nullopt;
  return text ? *text : std::string("The file operation failed.");
}

} // namespace

std::optional<std::string> SystemApplicationFileOperations::runningBundlePath() const {
  return utf8String(NSBundle.mainBundle.bundlePath);
}

std::string SystemApplicationFileOperations::homeDirectory() const {
  return utf8String(NSHomeDirectory()).value_or(std::string());
}

bool SystemApplicationFileOperations::exists(const std::string& path) const {
  NSString* converted = foundationString(path);
  return converted != nil && [NSFileManager.defaultManager fileExistsAtPath:converted
                                                                isDirectory:nullptr];
}

std::optional<std::string>
SystemApplicationFileOperations::copyItem(const std::string& source,
                                          const std::string& destination) {
  NSURL* from = fileURL(source);
  NSURL* to = fileURL(destination);
  if (from == nil || to == nil) {
    return failure(NO, nil);
  }
  NSError* error = nil;
  const BOOL copied = [NSFileManager.defaultManager copyItemAtURL:from toURL:to error:&error];
  return failure(copied, error);
}

std::optional<std::string>
SystemApplicationFileOperations::moveItemToTrash(const std::string& path) {
  NSURL* url = fileURL(path);
  if (url == nil) {
    return failure(NO, nil);
  }
  NSError* error = nil;
  const BOOL trashed = [NSFileManager.defaultManager trashItemAtURL:url
                                                   resultingItemURL:nil
                                                              error:&error];
  return failure(trashed, error);
}

std::optional<std::string> SystemApplicationFileOperations::removeItem(const std::string& path) {
  NSURL* url = fileURL(path);
  if (url == nil) {
    return failure(NO, nil);
  }
  NSError* error = nil;
  const BOOL removed = [NSFileManager.defaultManager removeItemAtURL:url error:&error];
  return failure(removed, error);
}

} // namespace quenby
