// Threading: main thread only (the open interval has no lock); os_signpost itself may be called
// from any thread.
//
// Lifetime: the log handle and the open interval live as long as this object.
//
// Guarantee: at most one "HUDPresentation" interval is open; phase events carry its identifier
// so that profiling tools draw them inside it. Closing an interval that is no longer open still
// closes one, with the message that says so. The signpost macros need literal names, so the
// names here repeat the core's `hudPresentationSignpostName` and `kHUDPresentationIntervalName`.

#include "hud/panel/macos/OSHUDPresentationSignposter.hpp"

#import "base/macos/FoundationPropertyList.h"

#import <Foundation/Foundation.h>
#include <optional>
#include <os/signpost.h>
#include <string>

namespace quenby {

namespace {
constexpr const char* kFallbackSubsystem = "com.brimfold.Quenby";
} // namespace

struct OSHUDPresentationSignposter::Storage {
  os_log_t log;
  std::optional<os_signpost_id_t> intervalState;
};

OSHUDPresentationSignposter::OSHUDPresentationSignposter() {
  std::string subsystem = kFallbackSubsystem;
  @autoreleasepool {
    if (NSString* identifier = NSBundle.mainBundle.bundleIdentifier) {
      subsystem = utf8String(identifier).value_or(kFallbackSubsystem);
    }
  }
  storage_ = std::make_unique<Storage>(
      Storage{os_log_create(subsystem.c_str(), "HUDPresentation"), std::nullopt});
}

OSHUDPresentationSignposter::~OSHUDPresentationSignposter() = default;

void OSHUDPresentationSignposter::beginInterval() {
  const os_signpost_id_t identifier = os_signpost_id_generate(storage_->log);
  storage_->intervalState = identifier;
  os_signpost_interval_begin(storage_->log, identifier, "HUDPresentation");
}

void OSHUDPresentationSignposter::emitEvent(HUDPresentationPhase phase) {
  os_log_t log = storage_->log;
  const os_signpost_id_t identifier =
      storage_->intervalState ? *storage_->intervalState : os_signpost_id_generate(log);
  switch (phase) {
  case HUDPresentationPhase::recognition:
    os_signpost_event_emit(log, identifier, "Recognition");
    return;
  case HUDPresentationPhase::snapshotApplied:
    os_signpost_event_emit(log, identifier, "SnapshotApplied");
    return;
  case HUDPresentationPhase::panelOrdered:
    os_signpost_event_emit(log, identifier, "PanelOrdered");
    return;
  case HUDPresentationPhase::firstFrameCommitted:
    os_signpost_event_emit(log, identifier, "FirstFrameCommitted");
    return;
  }
}

void OSHUDPresentationSignposter::endInterval(HUDPresentationOutcome outcome) {
  os_log_t log = storage_->log;
  const bool alreadyEnded = !storage_->intervalState;
  const os_signpost_id_t identifier =
      alreadyEnded ? os_signpost_id_generate(log) : *storage_->intervalState;
  storage_->intervalState.reset();
  const std::string message(hudPresentationEndMessage(outcome, alreadyEnded));
  os_signpost_interval_end(log, identifier, "HUDPresentation", "%{public}s", message.c_str());
}

} // namespace quenby
