// Wraps one NSRunningApplication and forwards to it. Main thread only. It holds the application
// strongly for its own short life (one hide decision); asking an application that has quit since
// to hide is harmless and answers NO. Whether to hide is decided in the core, not here.

#include "shortcuts/switching/macos/RunningApplicationHideTarget.hpp"

#import "base/macos/FoundationPropertyList.h"

#import <AppKit/AppKit.h>

namespace quenby {

struct RunningApplicationHideTarget::Storage {
  NSRunningApplication* application;
};

RunningApplicationHideTarget::RunningApplicationHideTarget(std::unique_ptr<Storage> storage)
    : storage_(std::move(storage)) {}

RunningApplicationHideTarget::~RunningApplicationHideTarget() = default;

std::unique_ptr<HidableApplication> RunningApplicationHideTarget::frontmost() {
  NSRunningApplication* application = NSWorkspace.sharedWorkspace.frontmostApplication;
  if (application == nil) {
    return nullptr;
  }
  return std::make_unique<RunningApplicationHideTarget>(
      std::make_unique<Storage>(Storage{application}));
}

std::optional<std::string> RunningApplicationHideTarget::bundleIdentifier() const {
  NSString* identifier = storage_->application.bundleIdentifier;
  if (identifier == nil) {
    return std::nullopt;
  }
  return utf8String(identifier);
}

bool RunningApplicationHideTarget::hide() { return [storage_->application hide]; }

} // namespace quenby
